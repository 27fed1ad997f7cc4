#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <libskin/SkinLibrary.h>
#include <memory>
#include <tradeConfig/HostPlatform.h>
#include <tradeConfig/ITrade.h>
#include <tradeConfig/ModuleEntry.h>

// The host's trading core. The fourteen entries before the two that the module calls are the
// host's own operations.
class TradingCore : public KivoTrade::ITrade {
public:
    void Placeholder0() override { }
    void Placeholder1() override { }
    void Placeholder2() override { }
    void Placeholder3() override { }
    void Placeholder4() override { }
    void Placeholder5() override { }
    void Placeholder6() override { }
    void Placeholder7() override { }
    void Placeholder8() override { }
    void Placeholder9() override { }
    void Placeholder10() override { }
    void Placeholder11() override { }
    void Placeholder12() override { }
    void Placeholder13() override { }

    TradeParm* GetTradeParm() override { return &m_parm; }

    void SaveTradeParm() override
    {
        // Apply and store the record here.
        std::printf("saved: %d shares at most in a child order\n", m_parm.splitMaxQty);
    }

private:
    TradeParm m_parm{};
};

// The standard controls go by the palette, the module's own by the skin service.
bool useSkin(const QString& nameOrFolder)
{
    auto* const skins = CorvelSkin::SkinLibrary::instance();
    QObject::connect(skins, &CorvelSkin::SkinLibrary::skinChanged, qApp,
                     [skins] { QApplication::setPalette(skins->palette()); });
    return skins->load(nameOrFolder);
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationDomain(QStringLiteral("example.com"));
    QApplication::setApplicationName(QStringLiteral("settingshost"));
    QApplication::setApplicationVersion(QStringLiteral("1.0.0"));
    std::printf("data directory: %s\n", ApplicationHomePath());
    if (useSkin(QStringLiteral("dark")))
        std::printf("window colour: %s\n",
                    qPrintable(QApplication::palette().window().color().name()));

    TradingCore core; // outlives the dialog
    const std::unique_ptr<QWidget> dialog(static_cast<QWidget*>(CreateModuleWidget(&core)));
    dialog->show();
    if (application.arguments().contains(QStringLiteral("--once")))
        QTimer::singleShot(0, dialog.get(), &QWidget::close);
    return application.exec();
}
