#include "designer/KitPlugin.h"

#include "designer/PageStack.h"
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

QWidget* createPageStack(QWidget* parent) { return new PageStack(parent); }

constexpr KitWidget::Description descriptions[] = {
    {"CSwitchEx", "QWidget", "tradeConfig/SwitchEx.h", "switchBar", "Switch bar", 300, 40,
     createSwitchBar, false},
    {"CNavWidget", "QWidget", "tradeConfig/NavWidget.h", "navigationList", "Navigation list", 120,
     150, createNavigationList, false},
    {"CCaptionBar", "QWidget", "tradeConfig/CaptionBar.h", "captionBar", "Caption bar", 300, 30,
     createCaptionBar, false},
    {"CImageButton", "QPushButton", "tradeConfig/ImageButton.h", "imageButton", "Image button", 14,
     14, createImageButton, false},
    {"CTipLabel", "QLabel", "tradeConfig/TipLabel.h", "tipLabel", "Fading tip", 160, 20, createTip,
     false},
    {"CTableLineEdit", "QLineEdit", "tradeConfig/TableLineEdit.h", "keyCell", "Key-capture cell",
     120, 24, createKeyCell, false},
    {"PageStack", "QStackedWidget", "tradeConfig/PageStack.h", "pageStack", "Page stack", 300, 200,
     createPageStack, true},
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

bool KitWidget::isContainer() const { return m_description.hasPages; }

QWidget* KitWidget::createWidget(QWidget* parent) { return m_description.create(parent); }

QString KitWidget::domXml() const
{
    const QLatin1String pages(m_description.hasPages ? "<widget class=\"QWidget\" name=\"page\"/>"
                                                       "<widget class=\"QWidget\" name=\"page_2\"/>"
                                                     : "");
    return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">"
                          "<property name=\"geometry\"><rect><x>0</x><y>0</y>"
                          "<width>%3</width><height>%4</height></rect></property>%5</widget>"
                          "<customwidgets><customwidget><class>%1</class>"
                          "<extends>%6</extends></customwidget></customwidgets></ui>")
        .arg(name(), QLatin1String(m_description.objectName))
        .arg(m_description.width)
        .arg(m_description.height)
        .arg(pages, QLatin1String(m_description.extends));
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
