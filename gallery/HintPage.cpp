#include "gallery/GalleryParts.h"
#include "gallery/PageBuilder.h"
#include "gallery/Pages.h"
#include "tradeConfig/MarkShade.h"
#include "tradeConfig/TableLineEdit.h"

#include <QPushButton>

namespace GalleryPages {
namespace {

// Of the size that it comes with, which a layout would change.
CTipLabel* newTip(const QString& text, bool isError)
{
    auto* const tip = new CTipLabel(text, isError, nullptr);
    tip->setFixedSize(tip->size());
    return tip;
}

} // namespace

QWidget* hints()
{
    PageBuilder page(GalleryText::tr("提示标签与按键单元格"),
                     GalleryText::tr("错误用红色，正确用绿色；提示先停留 1.5 秒，再用 1 秒淡出。"));
    page.section(GalleryText::tr("提示标签"));
    QHBoxLayout* shelf = page.shelf();
    put(shelf, newTip(GalleryText::tr("应为 100 的倍数"), true), GalleryText::tr("错误"));
    put(shelf, newTip(GalleryText::tr("输入正确"), false), GalleryText::tr("正确"));
    CTipLabel* const fading = newTip(GalleryText::tr("正在淡出"), true);
    holdFade(*fading, 2000);
    put(shelf, fading, GalleryText::tr("淡出至一半"));

    CTipLabel* const tip = newTip(GalleryText::tr("与全局快捷键冲突"), true);
    QSizePolicy policy = tip->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    tip->setSizePolicy(policy);
    auto* const start = new QPushButton(GalleryText::tr("显示并淡出"));
    QObject::connect(start, &QAbstractButton::clicked, tip, [tip] {
        tip->show();
        tip->SetAutoHide();
    });
    shelf = page.shelf();
    shelf->addWidget(start, 0, Qt::AlignTop);
    put(shelf, tip, GalleryText::tr("可操作"));

    page.section(GalleryText::tr("按键单元格"));
    shelf = page.shelf();
    struct Cell {
        QString name;
        QString text;
        QString sheet;
    };
    const Cell cells[] = {
        {GalleryText::tr("空"), QString(), QString()},
        {GalleryText::tr("已设置"), QStringLiteral("Ctrl+F2"), QString()},
        {GalleryText::tr("错误"), QStringLiteral("F5"), QStringLiteral("color:red")},
        {GalleryText::tr("正确"), QStringLiteral("Ctrl+Alt+B"), QStringLiteral("color:green")},
    };
    int row = 0;
    for (const Cell& cell : cells) {
        auto* const editor = new CTableLineEdit(row++);
        editor->setText(cell.text);
        if (!cell.sheet.isEmpty())
            MarkShade::replaceSheet(*editor, cell.sheet);
        editor->setFixedWidth(120);
        put(shelf, editor, cell.name);
    }
    return page.finish();
}

} // namespace GalleryPages
