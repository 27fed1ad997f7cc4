#include "gallery/GalleryParts.h"
#include "gallery/PageBuilder.h"
#include "gallery/Pages.h"

namespace GalleryPages {
namespace {

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
