#include "appearance/SkinIcon.h"
#include "gallery/PageBuilder.h"
#include "gallery/Pages.h"

#include <QPainter>

namespace GalleryPages {
namespace {

struct IconRow {
    const char* image;
    const char* name;
};

constexpr IconRow messageIcons[] = {
    {"message_information", QT_TRANSLATE_NOOP("Gallery", "信息")},
    {"message_warning", QT_TRANSLATE_NOOP("Gallery", "警告")},
    {"message_critical", QT_TRANSLATE_NOOP("Gallery", "严重错误")},
    {"message_question", QT_TRANSLATE_NOOP("Gallery", "问题")},
};
constexpr IconRow toolIcons[] = {
    {"tool_settings", QT_TRANSLATE_NOOP("Gallery", "设置")},
    {"tool_undo", QT_TRANSLATE_NOOP("Gallery", "撤消")},
};

/// Shows an icon as it is at the moment: after a change of the skin it is the new one's.
class ShownIcon : public QWidget {
public:
    ShownIcon(const QIcon& icon, int side, bool enabled)
        : m_icon(icon)
    {
        setFixedSize(side, side);
        setEnabled(enabled);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        m_icon.paint(&painter, rect(), Qt::AlignCenter,
                     isEnabled() ? QIcon::Normal : QIcon::Disabled);
    }

private:
    const QIcon m_icon;
};

QIcon iconOf(const IconRow& row) { return SkinIcon::of(QLatin1String(row.image)); }

QString nameOf(const IconRow& row, bool enabled)
{
    const QString name = GalleryText::tr(row.name);
    return enabled ? name : GalleryText::tr("%1，禁用").arg(name);
}

} // namespace

QWidget* icons()
{
    PageBuilder page(GalleryText::tr("图标"), GalleryText::tr("由皮肤提供，按每种大小重新绘制。"));
    page.section(GalleryText::tr("消息框图标"));
    for (const int side : {24, 32, 64}) {
        QHBoxLayout* const shelf = page.shelf();
        for (const IconRow& row : messageIcons) {
            for (const bool enabled : {true, false})
                put(shelf, new ShownIcon(iconOf(row), side, enabled), nameOf(row, enabled));
        }
    }
    page.section(GalleryText::tr("工具栏图标"));
    QHBoxLayout* const shelf = page.shelf();
    for (const IconRow& row : toolIcons) {
        for (const bool enabled : {true, false})
            put(shelf, new ShownIcon(iconOf(row), 20, enabled), nameOf(row, enabled));
    }
    return page.finish();
}

} // namespace GalleryPages
