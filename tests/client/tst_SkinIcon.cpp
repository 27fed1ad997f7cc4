#include "appearance/SkinIcon.h"
#include "appearance/SkinStyle.h"
#include "libskin/SkinLibrary.h"
#include "support/Contrast.h"
#include "support/TestMain.h"

#include <QMessageBox>
#include <QPainter>
#include <QSet>

using CorvelSkin::SkinLibrary;

namespace {

constexpr QStyle::StandardPixmap boxPictures[]
    = {QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxWarning,
       QStyle::SP_MessageBoxCritical, QStyle::SP_MessageBoxQuestion};

/// A widget on a device of another density.
class DenseWidget : public QWidget {
public:
    explicit DenseWidget(double ratio)
        : m_ratio(ratio)
    {
    }

protected:
    int metric(PaintDeviceMetric which) const override
    {
        if (which == PdmDevicePixelRatioScaled)
            return int(m_ratio * devicePixelRatioFScale());
        return which == PdmDevicePixelRatio ? qRound(m_ratio) : QWidget::metric(which);
    }

private:
    const double m_ratio;
};

/// How many pixels are neither clear nor one of the picture's own few colours: its edges. A picture
/// that was enlarged has whole bands of them.
double shareOfBlends(const QImage& image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    QList<int> sorted = counts.values();
    std::sort(sorted.begin(), sorted.end(), std::greater<>());
    int plain = 0;
    for (int i = 0; i < 3 && i < sorted.size(); ++i)
        plain += sorted.at(i);
    return 1.0 - double(plain) / (image.width() * image.height());
}

} // namespace

/// Pictures that the skin draws: those of message boxes, and of the toolbar.
class tst_SkinIcon : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void boxPicturesAreTheSkins_data();
    void boxPicturesAreTheSkins();
    void boxPicturesStandOut_data();
    void boxPicturesStandOut();
    void crispAtEveryScale_data();
    void crispAtEveryScale();
    void othersAreTheToolkits();
    void boxesShowThem();
    void followsTheSkin();
    void disabledIsPaler();
};

void tst_SkinIcon::initTestCase() { QApplication::setStyle(new SkinStyle); }

void tst_SkinIcon::init()
{
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("light")));
    QApplication::setPalette(SkinLibrary::instance()->palette());
}

void tst_SkinIcon::boxPicturesAreTheSkins_data()
{
    QTest::addColumn<int>("picture");
    QTest::newRow("message_information") << int(QStyle::SP_MessageBoxInformation);
    QTest::newRow("message_warning") << int(QStyle::SP_MessageBoxWarning);
    QTest::newRow("message_critical") << int(QStyle::SP_MessageBoxCritical);
    QTest::newRow("message_question") << int(QStyle::SP_MessageBoxQuestion);
}

void tst_SkinIcon::boxPicturesAreTheSkins()
{
    QFETCH(const int, picture);
    const auto which = QStyle::StandardPixmap(picture);
    for (const char* const skin : {"light", "dark"}) {
        QVERIFY(SkinLibrary::instance()->load(QString::fromLatin1(skin)));
        const QString file = QStringLiteral(TRADECONFIG_SKINS_DIR "/%1/images/%2.svg")
                                 .arg(QLatin1String(skin), QLatin1String(QTest::currentDataTag()));
        QImage drawn(32, 32, QImage::Format_ARGB32_Premultiplied);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        painter.drawPixmap(0, 0, QIcon(file).pixmap(32, 32));
        painter.end();
        const QPixmap standard = QApplication::style()->standardPixmap(which, nullptr, nullptr);
        const int side = QApplication::style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
        QCOMPARE(standard.size(), QSize(side, side));
        const QImage icon = QApplication::style()->standardIcon(which).pixmap(32, 32).toImage();
        QCOMPARE(icon.convertToFormat(drawn.format()), drawn);
    }
}

void tst_SkinIcon::boxPicturesStandOut_data()
{
    QTest::addColumn<QString>("skin");
    QTest::newRow("light") << QStringLiteral("light");
    QTest::newRow("dark") << QStringLiteral("dark");
}

void tst_SkinIcon::boxPicturesStandOut()
{
    QFETCH(const QString, skin);
    QVERIFY(SkinLibrary::instance()->load(skin));
    const QColor ground = SkinLibrary::instance()->colour(QStringLiteral("PopupClient"));
    QSet<QRgb> colours;
    for (const QStyle::StandardPixmap which : boxPictures) {
        const QImage image
            = QApplication::style()->standardPixmap(which, nullptr, nullptr).toImage();
        // Beside the sign in its middle.
        const QColor body = image.pixelColor(image.width() * 5 / 16, image.height() * 13 / 16);
        QVERIFY2(contrast(body, ground) >= 3.0, qPrintable(body.name()));
        colours << body.rgb();
    }
    QCOMPARE(colours.size(), 3); // a question looks like an information
}

void tst_SkinIcon::crispAtEveryScale_data()
{
    QTest::addColumn<double>("ratio");
    for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0})
        QTest::addRow("%g", ratio) << ratio;
}

void tst_SkinIcon::crispAtEveryScale()
{
    QFETCH(const double, ratio);
    const DenseWidget widget(ratio);
    QCOMPARE(widget.devicePixelRatioF(), ratio);
    const int side = QApplication::style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    for (const QStyle::StandardPixmap which : boxPictures) {
        const QPixmap picture = QApplication::style()->standardPixmap(which, nullptr, &widget);
        QCOMPARE(picture.devicePixelRatioF(), ratio);
        QCOMPARE(picture.width(), qRound(side * ratio));
        const double blends = shareOfBlends(picture.toImage());
        // About as much edge as there is outline: its share falls as the picture grows.
        QVERIFY2(blends < 0.45 / ratio, qPrintable(QString::number(blends)));
    }
}

void tst_SkinIcon::othersAreTheToolkits()
{
    const QStyle* const base = static_cast<QProxyStyle*>(QApplication::style())->baseStyle();
    const auto picture = [](const QStyle* style) {
        return style->standardIcon(QStyle::SP_TrashIcon).pixmap(16, 16).toImage();
    };
    QCOMPARE(picture(QApplication::style()), picture(base));
}

void tst_SkinIcon::boxesShowThem()
{
    QMessageBox box(QMessageBox::Warning, QString(), QStringLiteral("text"));
    const int side = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    QCOMPARE(box.iconPixmap().toImage(),
             SkinIcon::picture(QStringLiteral("message_warning"), side, box.devicePixelRatioF())
                 .toImage());
}

void tst_SkinIcon::followsTheSkin()
{
    const QIcon icon
        = QApplication::style()->standardIcon(QStyle::StandardPixmap(SkinStyle::SettingsPicture));
    const QImage light = icon.pixmap(20, 20).toImage();
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("dark")));
    QVERIFY(icon.pixmap(20, 20).toImage() != light);
}

void tst_SkinIcon::disabledIsPaler()
{
    const QIcon icon
        = QApplication::style()->standardIcon(QStyle::StandardPixmap(SkinStyle::UndoPicture));
    const auto ink = [&icon](QIcon::Mode mode) {
        const QImage image = icon.pixmap(QSize(20, 20), mode).toImage();
        int sum = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                sum += qAlpha(image.pixel(x, y));
        }
        return sum;
    };
    QVERIFY(ink(QIcon::Normal) > 0);
    QVERIFY(ink(QIcon::Disabled) < ink(QIcon::Normal) * 0.5);
    QVERIFY(ink(QIcon::Disabled) > ink(QIcon::Normal) * 0.3);
}

TRADECONFIG_TEST_MAIN(tst_SkinIcon)
#include "tst_SkinIcon.moc"
