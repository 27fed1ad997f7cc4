#include "gallery/Gallery.h"

#include "gallery/GalleryParts.h"
#include "tradeConfig/CaptionBar.h"
#include "tradeConfig/TableLineEdit.h"
#include "tradeConfig/TipLabel.h"

#include <QCoreApplication>
#include <QDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

// The context of this file's texts.
struct Sample {
    Q_DECLARE_TR_FUNCTIONS(Gallery)
};

constexpr int pageMargin = 24;
constexpr int gap = 12;

// In pixels, as the skins' fonts are.
constexpr int textSize = 13;
constexpr int noteSize = 12;
constexpr int sectionSize = 15;
constexpr int titleSize = 22;

QLabel* label(const QString& text, int pixelSize, bool bold = false)
{
    auto* const made = new QLabel(text);
    QFont font = made->font();
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    made->setFont(font);
    return made;
}

QLabel* heading(const QString& text, int pixelSize) { return label(text, pixelSize, true); }

QLabel* note(const QString& text) { return label(text, noteSize); }

QHBoxLayout* newShelf()
{
    auto* const shelf = new QHBoxLayout;
    shelf->setSpacing(2 * gap);
    return shelf;
}

// A widget with its name under it, at the end of a shelf.
void put(QHBoxLayout* shelf, QWidget* widget, const QString& name)
{
    auto* const cell = new QVBoxLayout;
    cell->setSpacing(4);
    cell->addWidget(widget, 0, Qt::AlignLeft);
    cell->addWidget(note(name));
    cell->addStretch();
    shelf->addLayout(cell);
}

// A page grows downwards: a title, then sections of shelves and tables.
class PageBuilder {
public:
    PageBuilder(const QString& title, const QString& summary)
        : m_page(new QWidget)
        , m_layout(new QVBoxLayout(m_page))
    {
        m_page->setAutoFillBackground(true);
        m_layout->setContentsMargins(pageMargin, pageMargin, pageMargin, pageMargin);
        m_layout->setSpacing(gap);
        m_layout->addWidget(heading(title, titleSize));
        QLabel* const text = note(summary);
        text->setWordWrap(true);
        m_layout->addWidget(text);
    }

    void section(const QString& title)
    {
        m_layout->addSpacing(gap);
        m_layout->addWidget(heading(title, sectionSize));
    }

    QHBoxLayout* shelf() { return add(newShelf()); }

    QGridLayout* table()
    {
        QGridLayout* const grid = add(new QGridLayout);
        grid->setHorizontalSpacing(2 * gap);
        grid->setVerticalSpacing(gap);
        return grid;
    }

    QWidget* finish()
    {
        m_layout->addStretch();
        return m_page;
    }

private:
    template <typename Layout> Layout* add(Layout* layout)
    {
        auto* const row = new QHBoxLayout;
        row->addLayout(layout);
        row->addStretch();
        m_layout->addLayout(row);
        return layout;
    }

    QWidget* m_page;
    QVBoxLayout* m_layout;
};

// ---- switch bar ----------------------------------------------------------------------------

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
    return row.columns && orientation == Qt::Vertical ? QString::fromUtf8(text) : Sample::tr(text);
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
        addImage(bar, 0, Sample::tr("列表"));
        selected = addImage(bar, 1, Sample::tr("走势"));
        bar->AddSeparator(separatorThickness);
        hover = addImage(bar, 2, Sample::tr("时钟"));
        addImage(bar, 0, Sample::tr("列表"), true);
        bar->AddSeparator(separatorThickness, true);
    } else {
        auto* const menu = new QMenu(bar);
        menu->addAction(Sample::tr("菜单"));
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
    put(shelf, stateBar(row, orientation, length, true), Sample::tr("背景开"));
    put(shelf, stateBar(row, orientation, length, false), Sample::tr("背景关"));
}

void putOverflow(QHBoxLayout* shelf, const ModeRow& row, Qt::Orientation orientation, int length)
{
    if (!row.scrolls)
        return;
    for (const ScrollPosition& position : scrollPositions)
        put(shelf, overflowBar(row, orientation, length, position.clicks),
            Sample::tr(position.name));
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
    SwitchItem* const first = bar->AddNormalSwitch(Sample::tr("系统设置"));
    bar->AddNormalSwitch(Sample::tr("交易设置"));
    bar->AddNormalSwitch(Sample::tr("快捷键设置"));
    bar->SetCurSel(first, false);
    return bar;
}

QWidget* horizontalBars()
{
    PageBuilder page(Sample::tr("横向切换栏"),
                     Sample::tr("每种模式的普通、悬停、选中和菜单项，分隔线、图片项和末端项；"
                                "放不下的项目由滚动按钮翻看。"));
    for (const ModeRow& row : modes) {
        page.section(modeTitle(row));
        putStates(page.shelf(), row, Qt::Horizontal, 470);
        putOverflow(page.shelf(), row, Qt::Horizontal, 305);
    }
    page.section(Sample::tr("设置窗口的切换栏"));
    put(page.shelf(), dialogBar(), Sample::tr("固定宽度 219，可操作"));
    return page.finish();
}

QWidget* verticalBars()
{
    constexpr int modesInARow = 2;
    PageBuilder page(Sample::tr("纵向切换栏"),
                     Sample::tr("同样的项目自上而下；平面按钮和导航模式每行写一个字，"
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

// ---- navigation list -----------------------------------------------------------------------

QWidget* navigationLists()
{
    constexpr QSize size(150, 240);
    PageBuilder page(Sample::tr("导航列表"),
                     Sample::tr("选中的一行透出窗口的背景，鼠标所指的一行另有底色。"));
    const QStringList entries{Sample::tr("基础设置"), Sample::tr("联动设置"),
                              Sample::tr("界面设置")};
    struct State {
        QString name;
        int selected;
        int hover;
    };
    const State states[] = {
        {Sample::tr("选中第一行"), 0, 0},
        {Sample::tr("选中第二行"), 1, 1},
        {Sample::tr("悬停在第三行"), 1, 2},
        {Sample::tr("选中最后一行，悬停在第一行"), 2, 0},
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
    put(shelf, empty, Sample::tr("空列表"));
    auto* const live = new CNavWidget;
    live->SetBtnList(entries);
    live->setFixedSize(size);
    put(shelf, live, Sample::tr("可操作"));
    return page.finish();
}

// ---- caption bar ---------------------------------------------------------------------------

constexpr QSize captionSize(210, 30);

// Puts a caption bar on top of a window that stays hidden.
CCaptionBar* crown(QWidget* window)
{
    window->setWindowTitle(Sample::tr("交易设置"));
    auto* const layout = new QVBoxLayout(window);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const caption = new CCaptionBar(window);
    layout->addWidget(caption);
    window->resize(captionSize);
    return caption;
}

std::unique_ptr<QWidget> newWindow(Qt::WindowFlags hints)
{
    return std::make_unique<QWidget>(nullptr, Qt::Window | Qt::FramelessWindowHint | hints);
}

struct Hint {
    Qt::WindowType hint;
    const char* name;
};

constexpr Hint leftHints[] = {
    {Qt::WindowSystemMenuHint, QT_TRANSLATE_NOOP("Gallery", "徽标")},
    {Qt::WindowTitleHint, QT_TRANSLATE_NOOP("Gallery", "标题")},
};

constexpr Hint rightHints[] = {
    {Qt::WindowMinimizeButtonHint, QT_TRANSLATE_NOOP("Gallery", "最小化")},
    {Qt::WindowMaximizeButtonHint, QT_TRANSLATE_NOOP("Gallery", "最大化")},
    {Qt::WindowCloseButtonHint, QT_TRANSLATE_NOOP("Gallery", "关闭")},
};

// The members of @p hints that @p bits selects.
template <std::size_t count>
Qt::WindowFlags chosen(const Hint (&hints)[count], unsigned bits, QString* name)
{
    Qt::WindowFlags flags;
    QStringList names;
    for (std::size_t i = 0; i < count; ++i) {
        if (!(bits & 1U << i))
            continue;
        flags |= hints[i].hint;
        names += Sample::tr(hints[i].name);
    }
    *name = names.isEmpty() ? Sample::tr("无") : names.join(QStringLiteral(" + "));
    return flags;
}

void putCaption(QHBoxLayout* shelf, std::unique_ptr<QWidget> window, const QString& name)
{
    put(shelf, new WindowPreview(std::move(window)), name);
}

QWidget* captionBars()
{
    constexpr unsigned leftSets = 1U << std::size(leftHints);
    constexpr unsigned rightSets = 1U << std::size(rightHints);
    constexpr Qt::WindowFlags allHints = Qt::WindowSystemMenuHint | Qt::WindowTitleHint
        | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint;
    PageBuilder page(Sample::tr("标题栏"), Sample::tr("窗口的标志决定标题栏有哪些部分。"));

    page.section(Sample::tr("窗口标志的每种组合"));
    QGridLayout* const table = page.table();
    for (unsigned right = 0; right < rightSets; ++right) {
        QString rightName;
        const Qt::WindowFlags rightFlags = chosen(rightHints, right, &rightName);
        table->addWidget(note(rightName), int(right) + 1, 0);
        for (unsigned left = 0; left < leftSets; ++left) {
            QString leftName;
            const Qt::WindowFlags flags = rightFlags | chosen(leftHints, left, &leftName);
            if (right == 0)
                table->addWidget(note(leftName), 0, int(left) + 1);
            auto window = newWindow(flags);
            crown(window.get());
            table->addWidget(new WindowPreview(std::move(window)), int(right) + 1, int(left) + 1);
        }
    }

    page.section(Sample::tr("窗口的种类和状态"));
    QHBoxLayout* shelf = page.shelf();
    auto window = newWindow(allHints);
    crown(window.get());
    putCaption(shelf, std::move(window), Sample::tr("非模态窗口"));
    auto dialog = std::make_unique<QDialog>(nullptr, Qt::FramelessWindowHint | allHints);
    dialog->setModal(true);
    crown(dialog.get());
    putCaption(shelf, std::move(dialog), Sample::tr("模态对话框"));
    window = newWindow(allHints);
    window->setWindowState(Qt::WindowMaximized);
    crown(window.get());
    putCaption(shelf, std::move(window), Sample::tr("已最大化：还原按钮"));

    shelf = page.shelf();
    window = newWindow(allHints);
    crown(window.get())->setFrameEnabled(false);
    putCaption(shelf, std::move(window), Sample::tr("不绘制背景"));
    window = newWindow(allHints);
    crown(window.get())->setTitleEnabled(false);
    putCaption(shelf, std::move(window), Sample::tr("隐藏标题"));
    window = newWindow(allHints);
    auto* const extra = new CImageButton(nullptr);
    extra->setSingleImage(QStringLiteral("gallery_toggle"), 2, true, true);
    extra->setFixedSize(20, 20);
    crown(window.get())->addCaptionWidget(extra);
    putCaption(shelf, std::move(window), Sample::tr("附加的控件"));
    return page.finish();
}

// ---- image button --------------------------------------------------------------------------

struct ButtonRow {
    const char* name;
    QSize size;
    bool text;
    void (*set)(CImageButton&);
};

const ButtonRow buttonRows[] = {
    {QT_TRANSLATE_NOOP("Gallery", "1 · 单帧"),
     {24, 24},
     false,
     [](CImageButton& button) { button.setSingleImage(QStringLiteral("logo"), 1, false, true); }},
    {QT_TRANSLATE_NOOP("Gallery", "2 · 两帧"),
     {28, 28},
     false,
     [](CImageButton& button) {
         button.setSingleImage(QStringLiteral("gallery_toggle"), 2, true, false);
     }},
    {QT_TRANSLATE_NOOP("Gallery", "3 · 三帧：最小化"),
     {14, 14},
     false,
     [](CImageButton& button) {
         button.setSingleImage(QStringLiteral("win_minimize"), 3, true, false);
     }},
    {QT_TRANSLATE_NOOP("Gallery", "3 · 三帧：最大化"),
     {14, 14},
     false,
     [](CImageButton& button) {
         button.setSingleImage(QStringLiteral("win_normal"), 3, true, false);
     }},
    {QT_TRANSLATE_NOOP("Gallery", "3 · 三帧：还原"),
     {14, 14},
     false,
     [](CImageButton& button) {
         button.setSingleImage(QStringLiteral("win_renew"), 3, true, false);
     }},
    {QT_TRANSLATE_NOOP("Gallery", "4 · 四帧"),
     {28, 28},
     false,
     [](CImageButton& button) {
         button.setSingleImage(QStringLiteral("gallery_action"), 4, true, false);
     }},
    {QT_TRANSLATE_NOOP("Gallery", "5 · 每种状态一张图片"),
     {88, 28},
     true,
     [](CImageButton& button) {
         button.setImage(
             QStringLiteral("gallery_plate_normal"), QStringLiteral("gallery_plate_hover"),
             QStringLiteral("gallery_plate_pressed"), QStringLiteral("gallery_plate_disabled"));
     }},
    {QT_TRANSLATE_NOOP("Gallery", "5 · 只有普通和悬停图片"),
     {88, 28},
     true,
     [](CImageButton& button) {
         button.setImage(QStringLiteral("gallery_plate_normal"),
                         QStringLiteral("gallery_plate_hover"), QString(), QString());
     }},
    {QT_TRANSLATE_NOOP("Gallery", "5 · 文字缩进 24"),
     {88, 28},
     true,
     [](CImageButton& button) {
         button.setImage(QStringLiteral("gallery_plate_normal"), QString(), QString(), QString());
         button.setTextIndent(24);
     }},
    {QT_TRANSLATE_NOOP("Gallery", "5 · 关闭按钮"),
     {14, 14},
     false,
     [](CImageButton& button) {
         button.setImage(QStringLiteral("PanelClose"), QString(), QString(), QString());
     }},
};

struct ButtonState {
    const char* name;
    bool hovered;
    bool pressed;
    bool enabled;
};

constexpr ButtonState buttonStates[] = {
    {QT_TRANSLATE_NOOP("Gallery", "普通"), false, false, true},
    {QT_TRANSLATE_NOOP("Gallery", "悬停"), true, false, true},
    {QT_TRANSLATE_NOOP("Gallery", "按下"), true, true, true},
    {QT_TRANSLATE_NOOP("Gallery", "禁用"), false, false, false},
};

void prepare(CImageButton* button, const ButtonRow& row)
{
    row.set(*button);
    button->setFixedSize(row.size);
    if (row.text) {
        button->setText(Sample::tr("下单"));
        button->setShowText(true);
    }
}

QWidget* imageButtons()
{
    PageBuilder page(Sample::tr("图片按钮"),
                     Sample::tr("五种图片方式的四种状态；没有专用图片的状态由另一种状态代替。"));
    page.section(Sample::tr("方式与状态"));
    QGridLayout* const table = page.table();
    int column = 1;
    for (const ButtonState& state : buttonStates)
        table->addWidget(note(Sample::tr(state.name)), 0, column++);
    table->addWidget(note(Sample::tr("可操作")), 0, column);
    int line = 1;
    for (const ButtonRow& row : buttonRows) {
        table->addWidget(label(Sample::tr(row.name), textSize), line, 0);
        column = 1;
        for (const ButtonState& state : buttonStates) {
            auto* const button = new HeldImageButton;
            prepare(button, row);
            button->setEnabled(state.enabled);
            button->hold(state.hovered, state.pressed);
            table->addWidget(button, line, column++, Qt::AlignLeft | Qt::AlignVCenter);
        }
        auto* const live = new CImageButton(nullptr);
        prepare(live, row);
        table->addWidget(live, line, column, Qt::AlignLeft | Qt::AlignVCenter);
        ++line;
    }
    return page.finish();
}

// ---- message box ---------------------------------------------------------------------------

struct BoxRow {
    QString name;
    QMessageBox::Icon icon;
    QString text;
    QMessageBox::StandardButtons buttons;
    int timeoutSeconds = -1;
    bool wide = false; ///< takes a row for itself
};

QVector<BoxRow> boxRows()
{
    const QString twentyLines = [] {
        QStringList lines;
        for (int line = 1; line <= 20; ++line)
            lines += Sample::tr("第 %1 行：委托已报，等待成交").arg(line);
        return lines.join(QLatin1Char('\n'));
    }();
    return {
        {Sample::tr("信息"), QMessageBox::Information, Sample::tr("参数已保存。"), QMessageBox::Ok},
        {Sample::tr("警告"), QMessageBox::Warning, Sample::tr("行情连接已断开，正在重新连接。"),
         QMessageBox::Retry | QMessageBox::Cancel},
        {Sample::tr("错误"), QMessageBox::Critical, Sample::tr("委托被拒绝：可用资金不足。"),
         QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore},
        {Sample::tr("询问"), QMessageBox::Question,
         Sample::tr("界面设置已更改，是否立即重新启动？"), QMessageBox::Yes | QMessageBox::No},
        {Sample::tr("没有图标"), QMessageBox::NoIcon, Sample::tr("没有图标的消息更窄、更矮。"),
         QMessageBox::Ok | QMessageBox::Cancel},
        {Sample::tr("倒计时"), QMessageBox::Information, Sample::tr("窗口将自动关闭。"),
         QMessageBox::Ok, 9},
        {Sample::tr("没有按钮"), QMessageBox::Information, Sample::tr("正在退出，请稍候。"),
         QMessageBox::NoButton},
        {Sample::tr("很长的单词"), QMessageBox::Warning,
         QStringLiteral("/Users/trader/Library/Application_Support/com.kivotrade.tradeclient/"
                        "config/system_settings_backup_20240102030405.ini"),
         QMessageBox::Ok},
        {Sample::tr("六个按钮"), QMessageBox::Question, Sample::tr("保存对交易参数的修改？"),
         QMessageBox::Save | QMessageBox::SaveAll | QMessageBox::Discard | QMessageBox::Cancel
             | QMessageBox::Help | QMessageBox::RestoreDefaults,
         -1, true},
        {Sample::tr("长文字"), QMessageBox::Information,
         Sample::tr("科创板股票的单笔申报数量不得少于 200 股，超过 200 股的部分可以以 1 股为单位"
                    "递增；市价申报的单笔数量不得超过 5 万股，限价申报的单笔数量不得超过 "
                    "10 万股。卖出时余额不足 200 股的部分，应当一次性申报卖出。"),
         QMessageBox::Ok, -1, true},
        {Sample::tr("二十行文字"), QMessageBox::Information, twentyLines,
         QMessageBox::Yes | QMessageBox::YesToAll | QMessageBox::No | QMessageBox::NoToAll, -1,
         true},
    };
}

template <typename Box> std::unique_ptr<Box> newBox(const BoxRow& row, QWidget* parent)
{
    return std::make_unique<Box>(parent, row.icon, row.text, Sample::tr("交易客户端"), row.buttons,
                                 row.timeoutSeconds);
}

QWidget* messageBoxes()
{
    constexpr int columns = 2;
    PageBuilder page(Sample::tr("消息框"), Sample::tr("单击图片打开可操作的消息框。"));
    page.section(Sample::tr("图标、按钮与文字"));
    QGridLayout* const table = page.table();
    int place = 0;
    for (const BoxRow& row : boxRows()) {
        auto box = newBox<HeldMessageBox>(row, nullptr);
        box->settle();
        auto* const preview = new WindowPreview(std::move(box));
        preview->setAction([row, preview] {
            auto opened = newBox<CMessageBox>(row, preview->window());
            opened->setAttribute(Qt::WA_DeleteOnClose);
            opened.release()->open();
        });
        auto* const shelf = newShelf();
        put(shelf, preview, row.name);
        table->addLayout(shelf, place / columns, place % columns, 1, row.wide ? columns : 1,
                         Qt::AlignLeft | Qt::AlignTop);
        place += row.wide ? columns : 1;
    }
    return page.finish();
}

// ---- tip label and key-capture cell --------------------------------------------------------

// Of the size that it comes with, which a layout would change.
CTipLabel* newTip(const QString& text, bool isError)
{
    auto* const tip = new CTipLabel(text, isError, nullptr);
    tip->setFixedSize(tip->size());
    return tip;
}

QWidget* hints()
{
    PageBuilder page(Sample::tr("提示标签与按键单元格"),
                     Sample::tr("错误用红色，正确用绿色；提示先停留 1.5 秒，再用 1 秒淡出。"));
    page.section(Sample::tr("提示标签"));
    QHBoxLayout* shelf = page.shelf();
    put(shelf, newTip(Sample::tr("应为 100 的倍数"), true), Sample::tr("错误"));
    put(shelf, newTip(Sample::tr("输入正确"), false), Sample::tr("正确"));
    CTipLabel* const fading = newTip(Sample::tr("正在淡出"), true);
    holdFade(*fading, 2000);
    put(shelf, fading, Sample::tr("淡出至一半"));

    CTipLabel* const tip = newTip(Sample::tr("与全局快捷键冲突"), true);
    QSizePolicy policy = tip->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    tip->setSizePolicy(policy);
    auto* const start = new QPushButton(Sample::tr("显示并淡出"));
    QObject::connect(start, &QAbstractButton::clicked, tip, [tip] {
        tip->show();
        tip->SetAutoHide();
    });
    shelf = page.shelf();
    shelf->addWidget(start, 0, Qt::AlignTop);
    put(shelf, tip, Sample::tr("可操作"));

    page.section(Sample::tr("按键单元格"));
    shelf = page.shelf();
    struct Cell {
        QString name;
        QString text;
        QString sheet;
    };
    const Cell cells[] = {
        {Sample::tr("空"), QString(), QString()},
        {Sample::tr("已设置"), QStringLiteral("Ctrl+F2"), QString()},
        {Sample::tr("错误"), QStringLiteral("F5"), QStringLiteral("color:red")},
        {Sample::tr("正确"), QStringLiteral("Ctrl+Alt+B"), QStringLiteral("color:green")},
    };
    int row = 0;
    for (const Cell& cell : cells) {
        auto* const editor = new CTableLineEdit(row++);
        editor->setText(cell.text);
        editor->setStyleSheet(cell.sheet);
        editor->setFixedWidth(120);
        put(shelf, editor, cell.name);
    }
    return page.finish();
}

struct PageRow {
    const char* name;
    const char* title;
    QWidget* (*make)();
};

constexpr PageRow pageRows[] = {
    {"switch-horizontal", QT_TRANSLATE_NOOP("Gallery", "横向切换栏"), horizontalBars},
    {"switch-vertical", QT_TRANSLATE_NOOP("Gallery", "纵向切换栏"), verticalBars},
    {"navigation", QT_TRANSLATE_NOOP("Gallery", "导航列表"), navigationLists},
    {"caption", QT_TRANSLATE_NOOP("Gallery", "标题栏"), captionBars},
    {"image-button", QT_TRANSLATE_NOOP("Gallery", "图片按钮"), imageButtons},
    {"message-box", QT_TRANSLATE_NOOP("Gallery", "消息框"), messageBoxes},
    {"hints", QT_TRANSLATE_NOOP("Gallery", "提示与按键"), hints},
};

} // namespace

Gallery::Gallery(QWidget* parent)
    : QMainWindow(parent)
    , m_stack(new QStackedWidget)
    , m_skinMenu(menuBar()->addMenu(tr("视图(&V)"))->addMenu(tr("皮肤")))
{
    constexpr int listWidth = 150;
    setWindowTitle(tr("控件展示"));
    QFont plain = font();
    plain.setPixelSize(textSize);
    setFont(plain);
    QStringList titles;
    for (const PageRow& row : pageRows) {
        Page page{QLatin1String(row.name), tr(row.title), row.make()};
        auto* const area = new QScrollArea;
        area->setFrameShape(QFrame::NoFrame);
        area->setWidgetResizable(true);
        area->setWidget(page.content);
        m_stack->addWidget(area);
        titles += page.title;
        m_pages += page;
    }
    auto* const list = new CNavWidget;
    list->SetBtnList(titles);
    list->setFixedWidth(listWidth);
    connect(list, &CNavWidget::signal_onclicked, m_stack, &QStackedWidget::setCurrentIndex);

    auto* const central = new QWidget;
    auto* const layout = new QHBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(list);
    layout->addWidget(m_stack, 1);
    setCentralWidget(central);
    const QSize wanted(1240, 800);
    resize(wanted.boundedTo(screen()->availableSize() - QSize(0, 40)));
}

Pictures Gallery::writeScreenshots(const QString& directory)
{
    Pictures pictures(directory);
    show();
    for (int index = 0; index < m_pages.size(); ++index) {
        const Page& page = m_pages.at(index);
        m_stack->setCurrentIndex(index);
        QCoreApplication::processEvents();
        // In its own size rather than the window's.
        auto* const area = qobject_cast<QScrollArea*>(m_stack->currentWidget());
        area->setWidgetResizable(false);
        page.content->adjustSize();
        const QPixmap picture = page.content->grab();
        area->setWidgetResizable(true);
        if (!pictures.add(QStringLiteral("gallery-%1-%2").arg(index + 1).arg(page.name), picture))
            break;
    }
    return pictures;
}
