#include "designer/KitPlugin.h"

#include "tradeConfig/CaptionBar.h"
#include "tradeConfig/ImageButton.h"
#include "tradeConfig/NavWidget.h"
#include "tradeConfig/SwitchEx.h"
#include "tradeConfig/TableLineEdit.h"
#include "tradeConfig/TipLabel.h"
#include "tradeConfig/skin/SkinKeys.h"

#include <QIcon>

namespace {

// Each widget comes with a little content, so that a form under construction shows its look.

// Designer knows nothing of items, so the bar clears its own.
class DesignerSwitchBar : public CSwitchEx {
public:
    using CSwitchEx::CSwitchEx;
    ~DesignerSwitchBar() override { ClearAll(); }
};

QWidget* createSwitchBar(QWidget* parent)
{
    auto* const bar = new DesignerSwitchBar(parent, Qt::Horizontal, QMargins());
    SwitchItem* const first
        = bar->AddNormalSwitch(QStringLiteral("Switch 1"), nullptr, false, nullptr);
    bar->AddNormalSwitch(QStringLiteral("Switch 2"), nullptr, false, nullptr);
    bar->SetCurSel(first, false);
    return bar;
}

QWidget* createNavigationList(QWidget* parent)
{
    auto* const list = new CNavWidget(parent);
    list->SetBtnList({QStringLiteral("Page 1"), QStringLiteral("Page 2")});
    return list;
}

QWidget* createCaptionBar(QWidget* parent) { return new CCaptionBar(parent); }

QWidget* createImageButton(QWidget* parent)
{
    auto* const button = new CImageButton(parent);
    button->setSingleImage(SkinKeys::Image::win_minimize(), 3, true, false);
    return button;
}

QWidget* createTip(QWidget* parent) { return new CTipLabel(QStringLiteral("Tip"), true, parent); }

QWidget* createKeyCell(QWidget* parent) { return new CTableLineEdit(0, parent); }

constexpr KitWidget::Description descriptions[] = {
    {"CSwitchEx", "tradeConfig/SwitchEx.h", "Switch bar", 300, 40, createSwitchBar},
    {"CNavWidget", "tradeConfig/NavWidget.h", "Navigation list", 120, 150, createNavigationList},
    {"CCaptionBar", "tradeConfig/CaptionBar.h", "Caption bar", 300, 30, createCaptionBar},
    {"CImageButton", "tradeConfig/ImageButton.h", "Image button", 14, 14, createImageButton},
    {"CTipLabel", "tradeConfig/TipLabel.h", "Fading tip", 160, 20, createTip},
    {"CTableLineEdit", "tradeConfig/TableLineEdit.h", "Key-capture cell", 120, 24, createKeyCell},
};

} // namespace

KitWidget::KitWidget(const Description& description)
    : m_description(description)
{
}

QString KitWidget::name() const { return QString::fromLatin1(m_description.className); }

QString KitWidget::group() const { return QStringLiteral("Trade Config"); }

QString KitWidget::toolTip() const { return QString::fromLatin1(m_description.toolTip); }

QString KitWidget::whatsThis() const { return toolTip(); }

QString KitWidget::includeFile() const { return QString::fromLatin1(m_description.header); }

QIcon KitWidget::icon() const { return QIcon(); }

bool KitWidget::isContainer() const { return false; }

QWidget* KitWidget::createWidget(QWidget* parent) { return m_description.create(parent); }

QString KitWidget::domXml() const
{
    return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">"
                          "<property name=\"geometry\"><rect><x>0</x><y>0</y>"
                          "<width>%3</width><height>%4</height></rect></property>"
                          "</widget></ui>")
        .arg(name(), name().mid(1).toLower())
        .arg(m_description.width)
        .arg(m_description.height);
}

KitPlugin::KitPlugin(QObject* parent)
    : QObject(parent)
{
    for (const KitWidget::Description& description : descriptions)
        m_widgets.push_back(std::make_unique<KitWidget>(description));
}

QList<QDesignerCustomWidgetInterface*> KitPlugin::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface*> widgets;
    for (const auto& widget : m_widgets)
        widgets << widget.get();
    return widgets;
}
