#include "gallery/GalleryParts.h"
#include "gallery/PageBuilder.h"
#include "gallery/Pages.h"

#include <QMenu>

namespace GalleryPages {
namespace {

struct ModeRow {
    CSwitchEx::SwitchMode mode;
    const char* name;
    bool scrolls; ///< sharing the bar equally leaves nothing to scroll
    bool imagesOnly; ///< text items are not painted
    bool columns; ///< a vertical bar writes one character a line
};

constexpr ModeRow modes[] = {
    {CSwitchEx::ModeSwitch, "ModeSwitch", false, false, false},
    {CSwitchEx::ModeButton, "ModeButton", true, false, false},
    {CSwitchEx::ModeFlatButton, "ModeFlatButton", true, false, true},
    {CSwitchEx::ModeFlatBlue, "ModeFlatBlue", true, false, false},
    {CSwitchEx::ModeIKButton, "ModeIKButton", true, false, false},
    {CSwitchEx::ModeImageButton, "ModeImageButton", true, true, false},
    {CSwitchEx::ModeNavButton, "ModeNavButton", true, false, true},
};

struct ImagePair {
    const char* image;
    const char* selected;
};

constexpr ImagePair images[] = {
    {"gallery_list", "gallery_list_on"},
    {"gallery_chart", "gallery_chart_on"},
    {"gallery_clock", "gallery_clock_on"},
};

constexpr int barThickness = 36; // of the sample images too
constexpr int separatorThickness = 2;
constexpr int columnItem = 62; // three characters, one under the other

constexpr const char* endLabel = QT_TRANSLATE_NOOP("Gallery", "末端");
constexpr const char* markets[] = {
    QT_TRANSLATE_NOOP("Gallery", "沪深"), QT_TRANSLATE_NOOP("Gallery", "创业"),
    QT_TRANSLATE_NOOP("Gallery", "科创"), QT_TRANSLATE_NOOP("Gallery", "北证"),
    QT_TRANSLATE_NOOP("Gallery", "基金"), QT_TRANSLATE_NOOP("Gallery", "债券"),
    QT_TRANSLATE_NOOP("Gallery", "港股"), QT_TRANSLATE_NOOP("Gallery", "期权"),
};

SwitchItem* addImage(CSwitchEx* bar, int index, const QString& label, bool atEnd = false)
{
    const ImagePair& pair = images[std::size_t(index) % std::size(images)];
    return bar->AddImageSwitch(label, QLatin1String(pair.image), QLatin1String(pair.selected), {},
                               atEnd);
}

HeldSwitchBar* newBar(const ModeRow& row, Qt::Orientation orientation, int length)
{
    const bool horizontal = orientation == Qt::Horizontal;
    const int thickness = horizontal || row.columns || row.imagesOnly ? barThickness : 84;
    auto* const bar = new HeldSwitchBar(
        orientation, horizontal ? QSize(length, thickness) : QSize(thickness, length));
    if (!horizontal && row.columns) {
        bar->setItemSize(columnItem);
        // The line beside the selected item would lie just outside the bar.
        bar->SetPadding(QMarginsF(0, 0, 1, 0));
    }
    return bar;
}

// One character a line is for Chinese: other languages do not fit.
QString sampleText(const char* text, const ModeRow& row, Qt::Orientation orientation)
{
    return row.columns && orientation == Qt::Vertical ? QString::fromUtf8(text)
                                                      : GalleryText::tr(text);
}

// Every kind and every state of an item.
HeldSwitchBar* stateBar(const ModeRow& row, Qt::Orientation orientation, int length,
                        bool background)
{
    HeldSwitchBar* const bar = newBar(row, orientation, length);
    const auto text
        = [&row, orientation](const char* label) { return sampleText(label, row, orientation); };
    SwitchItem* selected = nullptr;
    SwitchItem* hover = nullptr;
    if (row.imagesOnly) {
        addImage(bar, 0, GalleryText::tr("列表"));
        selected = addImage(bar, 1, GalleryText::tr("走势"));
        bar->AddSeparator(separatorThickness);
        hover = addImage(bar, 2, GalleryText::tr("时钟"));
        addImage(bar, 0, GalleryText::tr("列表"), true);
        bar->AddSeparator(separatorThickness, true);
    } else {
        auto* const menu = new QMenu(bar);
        menu->addAction(GalleryText::tr("菜单"));
        bar->AddNormalSwitch(text(QT_TRANSLATE_NOOP("Gallery", "普通")));
        hover = bar->AddNormalSwitch(text(QT_TRANSLATE_NOOP("Gallery", "悬停")));
        selected = bar->AddNormalSwitch(text(QT_TRANSLATE_NOOP("Gallery", "选中")));
        bar->AddNormalSwitch(text(QT_TRANSLATE_NOOP("Gallery", "菜单")), {}, false, menu);
        bar->AddSeparator(separatorThickness);
        addImage(bar, 1, text(QT_TRANSLATE_NOOP("Gallery", "图")));
        bar->AddNormalSwitch(text(endLabel), {}, true);
        bar->AddSeparator(separatorThickness, true);
    }
    bar->setBackgroundColorEnable(background);
    // After the items: sharing the bar keeps the number of items that the first layout showed.
    bar->changeMode(row.mode);
    bar->SetCurSel(selected, false);
    bar->holdHover(hover);
    return bar;
}

// More items than fit, scrolled forward.
HeldSwitchBar* overflowBar(const ModeRow& row, Qt::Orientation orientation, int length, int clicks)
{
    constexpr int selectedIndex = 3;
    HeldSwitchBar* const bar = newBar(row, orientation, length);
    bar->changeMode(row.mode);
    SwitchItem* selected = nullptr;
    int index = 0;
    for (const char* const market : markets) {
        const QString label = sampleText(market, row, orientation);
        SwitchItem* const item
            = row.imagesOnly ? addImage(bar, index, label) : bar->AddNormalSwitch(label);
        if (index == selectedIndex)
            selected = item;
        ++index;
    }
    const QString end = sampleText(endLabel, row, orientation);
    if (row.imagesOnly)
        addImage(bar, 2, end, true);
    else
        bar->AddNormalSwitch(end, {}, true);
    bar->SetCurSel(selected, false);
    bar->scrollForward(clicks);
    return bar;
}

QString modeTitle(const ModeRow& row)
{
    return QStringLiteral("%1 · %2").arg(int(row.mode)).arg(QLatin1String(row.name));
}

struct ScrollPosition {
    const char* name;
    int clicks;
};

// More clicks than there are items: the bar stops at its end.
constexpr ScrollPosition scrollPositions[] = {
    {QT_TRANSLATE_NOOP("Gallery", "滚动到开头"), 0},
    {QT_TRANSLATE_NOOP("Gallery", "滚动到中间"), 1},
    {QT_TRANSLATE_NOOP("Gallery", "滚动到结尾"), 20},
};

void putStates(QHBoxLayout* shelf, const ModeRow& row, Qt::Orientation orientation, int length)
{
    put(shelf, stateBar(row, orientation, length, true), GalleryText::tr("背景开"));
    put(shelf, stateBar(row, orientation, length, false), GalleryText::tr("背景关"));
}

void putOverflow(QHBoxLayout* shelf, const ModeRow& row, Qt::Orientation orientation, int length)
{
    if (!row.scrolls)
        return;
    for (const ScrollPosition& position : scrollPositions)
        put(shelf, overflowBar(row, orientation, length, position.clicks),
            GalleryText::tr(position.name));
}

// As the settings dialog has it.
HeldSwitchBar* dialogBar()
{
    constexpr QSize size(657, 60);
    constexpr int itemWidth = 219;
    auto* const bar = new HeldSwitchBar(Qt::Horizontal, size);
    bar->setAttribute(Qt::WA_TransparentForMouseEvents, false);
    bar->changeMode(CSwitchEx::ModeNavButton);
    bar->setItemSize(itemWidth);
    bar->setBackgroundColorEnable(false);
    SwitchItem* const first = bar->AddNormalSwitch(GalleryText::tr("系统设置"));
    bar->AddNormalSwitch(GalleryText::tr("交易设置"));
    bar->AddNormalSwitch(GalleryText::tr("快捷键设置"));
    bar->SetCurSel(first, false);
    return bar;
}

} // namespace

QWidget* horizontalBars()
{
    PageBuilder page(GalleryText::tr("横向切换栏"),
                     GalleryText::tr("每种模式的普通、悬停、选中和菜单项，分隔线、图片项和末端项；"
                                     "放不下的项目由滚动按钮翻看。"));
    for (const ModeRow& row : modes) {
        page.section(modeTitle(row));
        putStates(page.shelf(), row, Qt::Horizontal, 470);
        putOverflow(page.shelf(), row, Qt::Horizontal, 305);
    }
    page.section(GalleryText::tr("设置窗口的切换栏"));
    put(page.shelf(), dialogBar(), GalleryText::tr("固定宽度 219，可操作"));
    return page.finish();
}

QWidget* verticalBars()
{
    constexpr int modesInARow = 2;
    PageBuilder page(GalleryText::tr("纵向切换栏"),
                     GalleryText::tr("同样的项目自上而下；平面按钮和导航模式每行写一个字，"
                                     "选中项右侧有一条线。"));
    QGridLayout* const table = page.table();
    int index = 0;
    for (const ModeRow& row : modes) {
        const int length = row.columns ? 370 : 246;
        auto* const block = new QVBoxLayout;
        block->setContentsMargins(0, gap, 2 * gap, 0);
        block->setSpacing(gap);
        block->addWidget(heading(modeTitle(row), sectionSize));
        QHBoxLayout* const shelf = newShelf();
        block->addLayout(shelf);
        putStates(shelf, row, Qt::Vertical, length);
        putOverflow(shelf, row, Qt::Vertical, length);
        shelf->addStretch();
        block->addStretch();
        table->addLayout(block, index / modesInARow, index % modesInARow);
        ++index;
    }
    return page.finish();
}

} // namespace GalleryPages
