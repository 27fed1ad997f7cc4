#include "gallery/GalleryParts.h"
#include "gallery/PageBuilder.h"
#include "gallery/Pages.h"
#include "tradeConfig/CaptionBar.h"

#include <QDialog>

namespace GalleryPages {
namespace {

constexpr QSize captionSize(210, 30);

// Puts a caption bar on top of a window that stays hidden.
CCaptionBar* crown(QWidget* window)
{
    window->setWindowTitle(GalleryText::tr("交易设置"));
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
        names += GalleryText::tr(hints[i].name);
    }
    *name = names.isEmpty() ? GalleryText::tr("无") : names.join(QStringLiteral(" + "));
    return flags;
}

void putCaption(QHBoxLayout* shelf, std::unique_ptr<QWidget> window, const QString& name)
{
    put(shelf, new WindowPreview(std::move(window)), name);
}

} // namespace

QWidget* captionBars()
{
    constexpr unsigned leftSets = 1U << std::size(leftHints);
    constexpr unsigned rightSets = 1U << std::size(rightHints);
    constexpr Qt::WindowFlags allHints = Qt::WindowSystemMenuHint | Qt::WindowTitleHint
        | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint;
    PageBuilder page(GalleryText::tr("标题栏"),
                     GalleryText::tr("窗口的标志决定标题栏有哪些部分。"));

    page.section(GalleryText::tr("窗口标志的每种组合"));
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

    page.section(GalleryText::tr("窗口的种类和状态"));
    QHBoxLayout* shelf = page.shelf();
    auto window = newWindow(allHints);
    crown(window.get());
    putCaption(shelf, std::move(window), GalleryText::tr("非模态窗口"));
    auto dialog = std::make_unique<QDialog>(nullptr, Qt::FramelessWindowHint | allHints);
    dialog->setModal(true);
    crown(dialog.get());
    putCaption(shelf, std::move(dialog), GalleryText::tr("模态对话框"));
    window = newWindow(allHints);
    window->setWindowState(Qt::WindowMaximized);
    crown(window.get());
    putCaption(shelf, std::move(window), GalleryText::tr("已最大化：还原按钮"));

    shelf = page.shelf();
    window = newWindow(allHints);
    crown(window.get())->setFrameEnabled(false);
    putCaption(shelf, std::move(window), GalleryText::tr("不绘制背景"));
    window = newWindow(allHints);
    crown(window.get())->setTitleEnabled(false);
    putCaption(shelf, std::move(window), GalleryText::tr("隐藏标题"));
    window = newWindow(allHints);
    auto* const extra = new CImageButton(nullptr);
    extra->setSingleImage(QStringLiteral("gallery_toggle"), 2, true, true);
    extra->setFixedSize(20, 20);
    crown(window.get())->addCaptionWidget(extra);
    putCaption(shelf, std::move(window), GalleryText::tr("附加的控件"));
    return page.finish();
}

} // namespace GalleryPages
