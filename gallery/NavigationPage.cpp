#include "gallery/GalleryParts.h"
#include "gallery/PageBuilder.h"
#include "gallery/Pages.h"

namespace GalleryPages {

QWidget* navigationLists()
{
    constexpr QSize size(150, 240);
    PageBuilder page(GalleryText::tr("导航列表"),
                     GalleryText::tr("选中的一行透出窗口的背景，鼠标所指的一行另有底色。"));
    const QStringList entries{GalleryText::tr("基础设置"), GalleryText::tr("联动设置"),
                              GalleryText::tr("界面设置")};
    struct State {
        QString name;
        int selected;
        int hover;
    };
    const State states[] = {
        {GalleryText::tr("选中第一行"), 0, 0},
        {GalleryText::tr("选中第二行"), 1, 1},
        {GalleryText::tr("悬停在第三行"), 1, 2},
        {GalleryText::tr("选中最后一行，悬停在第一行"), 2, 0},
    };
    QHBoxLayout* const shelf = page.shelf();
    for (const State& state : states) {
        auto* const list = new HeldNavList(entries);
        list->setFixedSize(size);
        list->hold(state.selected, state.hover);
        put(shelf, list, state.name);
    }
    auto* const empty = new HeldNavList({});
    empty->setFixedSize(size);
    put(shelf, empty, GalleryText::tr("空列表"));
    auto* const live = new CNavWidget;
    live->SetBtnList(entries);
    live->setFixedSize(size);
    put(shelf, live, GalleryText::tr("可操作"));
    return page.finish();
}

} // namespace GalleryPages
