#include "gallery/GalleryParts.h"
#include "gallery/PageBuilder.h"
#include "gallery/Pages.h"

namespace GalleryPages {
namespace {

struct ButtonRow {
    const char* name;
    int width;
    int height;
    int frames; // of the one image; 0: an image for each state
    const char* images[4]; // normal, mouse over, pressed, disabled
    bool text = false;
    int indent = 0;
};

// clang-format off
constexpr ButtonRow buttonRows[] = {
    {QT_TRANSLATE_NOOP("Gallery", "1 · 单帧"), 24, 24, 1, {"logo"}},
    {QT_TRANSLATE_NOOP("Gallery", "2 · 两帧"), 28, 28, 2, {"gallery_toggle"}},
    {QT_TRANSLATE_NOOP("Gallery", "3 · 三帧：最小化"), 14, 14, 3, {"win_minimize"}},
    {QT_TRANSLATE_NOOP("Gallery", "3 · 三帧：最大化"), 14, 14, 3, {"win_normal"}},
    {QT_TRANSLATE_NOOP("Gallery", "3 · 三帧：还原"), 14, 14, 3, {"win_renew"}},
    {QT_TRANSLATE_NOOP("Gallery", "4 · 四帧"), 28, 28, 4, {"gallery_action"}},
    {QT_TRANSLATE_NOOP("Gallery", "5 · 每种状态一张图片"), 88, 28, 0,
     {"gallery_plate_normal", "gallery_plate_hover", "gallery_plate_pressed", "gallery_plate_disabled"}, true},
    {QT_TRANSLATE_NOOP("Gallery", "5 · 只有普通和悬停图片"), 88, 28, 0,
     {"gallery_plate_normal", "gallery_plate_hover"}, true},
    {QT_TRANSLATE_NOOP("Gallery", "5 · 文字缩进 24"), 88, 28, 0,
     {"gallery_plate_normal"}, true, 24},
    {QT_TRANSLATE_NOOP("Gallery", "5 · 关闭按钮"), 14, 14, 0, {"PanelClose"}},
};
// clang-format on

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
    const auto image = [&row](int state) { return QString::fromLatin1(row.images[state]); };
    if (row.frames == 0)
        button->setImage(image(0), image(1), image(2), image(3));
    else // the single frame is drawn in its own proportions
        button->setSingleImage(image(0), row.frames, row.frames != 1, row.frames == 1);
    button->setFixedSize(row.width, row.height);
    if (row.text) {
        button->setTextIndent(row.indent);
        button->setText(GalleryText::tr("下单"));
        button->setShowText(true);
    }
}

} // namespace

QWidget* imageButtons()
{
    PageBuilder page(
        GalleryText::tr("图片按钮"),
        GalleryText::tr("五种图片方式的四种状态；没有专用图片的状态由另一种状态代替。"));
    page.section(GalleryText::tr("方式与状态"));
    QGridLayout* const table = page.table();
    int column = 1;
    for (const ButtonState& state : buttonStates)
        table->addWidget(note(GalleryText::tr(state.name)), 0, column++);
    table->addWidget(note(GalleryText::tr("可操作")), 0, column);
    int line = 1;
    for (const ButtonRow& row : buttonRows) {
        table->addWidget(label(GalleryText::tr(row.name), textSize), line, 0);
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

} // namespace GalleryPages
