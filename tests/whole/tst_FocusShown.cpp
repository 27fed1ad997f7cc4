#include "appearance/SkinStyle.h"
#include "appearance/SkinSwitcher.h"
#include "libskin/SkinLibrary.h"
#include "support/Contrast.h"
#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/TableLineEdit.h"

#include <QCheckBox>
#include <QStackedWidget>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QTableWidget>

using CorvelSkin::SkinLibrary;

namespace {

/// WCAG's least contrast of what is no text, here between the same pixel with and without focus.
constexpr double seenContrast = 3.0;

/// One stop of Tab, and what it looks like with the focus and without.
struct Stop {
    QString name;
    QSize outline; ///< of what has to be seen
    QVector<QImage> with; ///< by scale
    QVector<QImage> without;
};

constexpr int percents[] = {100, 150, 200, 300};

QRect pixelsOf(const QRect& place, double scale)
{
    return QRect((QPointF(place.topLeft()) * scale).toPoint(), place.size() * scale);
}

/// How many pixels clearly differ.
int clearlyDifferent(const QImage& one, const QImage& other)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            count += a != b && contrast(QColor(a), QColor(b)) >= seenContrast ? 1 : 0;
        }
    }
    return count;
}

/// The size of what has to be seen: of a check box its text, which is as wide as it has to be.
QSize outlinedSize(const QWidget& control)
{
    const auto* const box = qobject_cast<const QCheckBox*>(&control);
    if (!box)
        return control.size();
    QStyleOptionButton option;
    box->initStyleOption(&option);
    return box->style()->subElementRect(QStyle::SE_CheckBoxFocusRect, &option, box).size();
}

QString nameOf(const QWidget& control)
{
    const auto* const cell = qobject_cast<const CTableLineEdit*>(&control);
    return cell ? QStringLiteral("cell %1").arg(cell->row) : control.objectName();
}

/// A text that is selected is not the focus.
void deselect(QWidget& control)
{
    if (auto* const edit = qobject_cast<QLineEdit*>(&control))
        edit->deselect();
    for (auto* const edit : control.findChildren<QLineEdit*>())
        edit->deselect();
}

/// What @p window shows at @p place, at every scale.
QVector<QImage> imagesOf(QWidget& window, const QRect& place)
{
    QCoreApplication::processEvents();
    QVector<QImage> images;
    for (const int percent : percents) {
        const double scale = percent / 100.0;
        QImage image((QSizeF(window.size()) * scale).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        window.render(&image, place.topLeft(), place);
        images << image.copy(pixelsOf(place, scale));
    }
    return images;
}

/// What has the focus in @p window.
Stop stopIn(QWidget& window)
{
    QWidget& control = *QApplication::focusWidget();
    const QRect place(control.mapTo(&window, QPoint()), control.size());
    Stop stop{nameOf(control), outlinedSize(control), {}, {}};
    // Leaving a field may mark it, which is not the focus either.
    control.clearFocus();
    stop.without = imagesOf(window, place);
    control.setFocus();
    deselect(control);
    stop.with = imagesOf(window, place);
    return stop;
}

/// At which scales the focus is not seen at @p stop; empty if it always is.
QString unseen(const Stop& stop)
{
    QString bad;
    for (int i = 0; i < int(std::size(percents)); ++i) {
        const double scale = percents[i] / 100.0;
        // The area of an outline as thick as one pixel of the widget.
        const double least = 2 * (stop.outline.width() + stop.outline.height()) * scale * scale;
        const int count = clearlyDifferent(stop.with.at(i), stop.without.at(i));
        if (count < least)
            bad += QStringLiteral("%1 at %2 %: %3 of %4 pixels\n")
                       .arg(stop.name)
                       .arg(percents[i])
                       .arg(count)
                       .arg(least);
    }
    return bad;
}

} // namespace

class tst_FocusShown : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void atEveryStop_data();
    void atEveryStop();
    void whereTheKeysForPagesLead_data();
    void whereTheKeysForPagesLead();
    void ofAMarkedCell_data();
    void ofAMarkedCell();
    void ofACellInAnyHost_data();
    void ofACellInAnyHost();

private:
    static void addSkins();
};

void tst_FocusShown::initTestCase()
{
    QApplication::setStyle(new SkinStyle);
    QApplication::setCursorFlashTime(0);
}

void tst_FocusShown::atEveryStop_data()
{
    QTest::addColumn<QString>("skin");
    QTest::addColumn<int>("group");
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("stops");
    for (const char* const skin : {"light", "dark"}) {
        const auto row = [skin](const char* name, int group, int page, int stops) {
            QTest::addRow("%s, %s", skin, name)
                << QString::fromLatin1(skin) << group << page << stops;
        };
        row("basic settings", 0, 0, 6);
        row("linkage", 0, 1, 3);
        row("interface", 0, 2, 3);
        row("trade defaults", 1, 0, 9);
        row("prompts", 1, 1, 5);
        row("splitting", 1, 2, 7);
        row("STAR splitting", 1, 3, 11);
        row("stock hotkeys", 2, 0, 15);
        row("credit hotkeys", 2, 1, 15);
        row("global hotkeys", 2, 2, 2);
    }
}

void tst_FocusShown::atEveryStop()
{
    QFETCH(const QString, skin);
    QFETCH(const int, group);
    QFETCH(const int, page);
    QFETCH(const int, stops);
    QVERIFY(SkinLibrary::instance()->load(skin));
    const SkinSwitcher skins;
    const TestDialog dialog([](FakeTrade& trade) {
        TradeParm& parm = trade.parm();
        parm.uiPageMode = 2;
        parm.splitEnabled = 1;
        parm.splitStrategy = 1;
        parm.splitBaseQty = parm.splitMaxQty = 1000;
        parm.splitMinQty = 200;
        parm.starSplitEnabled = 1;
        parm.starSplitStrategy = 4;
        parm.starSplitBaseQty = parm.starSplitMaxQty = 1000;
        parm.starSplitStepQty = 200;
    });
    QStackedWidget* const stacks[]
        = {dialog->ui.stackedWidget_system, dialog->ui.stackedWidget_trade,
           dialog->ui.stackedWidget_shortcut};
    dialog->ui.stackedWidget->setCurrentIndex(group);
    stacks[group]->setCurrentIndex(page);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    dialog.leaveField();

    int walked = 0;
    for (QString name; name != QStringLiteral("pushButton_confirm"); ++walked) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const Stop stop = stopIn(*dialog);
        name = stop.name;
        QCOMPARE(unseen(stop), QString());
    }
    QCOMPARE(walked, stops);
}

void tst_FocusShown::addSkins()
{
    QTest::addColumn<QString>("skin");
    for (const char* const skin : {"light", "dark"})
        QTest::newRow(skin) << QString::fromLatin1(skin);
}

void tst_FocusShown::whereTheKeysForPagesLead_data() { addSkins(); }

// Where nobody has pressed Tab yet.
void tst_FocusShown::whereTheKeysForPagesLead()
{
    QFETCH(const QString, skin);
    QVERIFY(SkinLibrary::instance()->load(skin));
    const SkinSwitcher skins;
    const TestDialog dialog;
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    QCOMPARE(unseen(stopIn(*dialog)), QString());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageDown, Qt::ControlModifier);
    QVERIFY(qobject_cast<QCheckBox*>(QApplication::focusWidget()));
    QCOMPARE(unseen(stopIn(*dialog)), QString());
}

void tst_FocusShown::ofAMarkedCell_data() { addSkins(); }

// Its mark takes the place of the sheet that it is built with, and brings a frame.
void tst_FocusShown::ofAMarkedCell()
{
    QFETCH(const QString, skin);
    QVERIFY(SkinLibrary::instance()->load(skin));
    const SkinSwitcher skins;
    const TestDialog dialog;
    dialog->ui.stackedWidget->setCurrentIndex(2);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    auto& cell = *qobject_cast<CTableLineEdit*>(dialog->ui.tableWidget_shortcut->cellWidget(2, 1));
    cell.setFocus();
    for (const bool accepted : {false, true}) {
        QTest::keyClick(&cell, accepted ? Qt::Key_F9 : Qt::Key_F5);
        QCOMPARE(cell.styleSheet(),
                 accepted ? QStringLiteral("color:green") : QStringLiteral("color:red"));
        QCOMPARE(unseen(stopIn(*dialog)), QString());
    }
}

void tst_FocusShown::ofACellInAnyHost_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<QPalette>("palette");
    const QPalette standard = QStyleFactory::create(QStringLiteral("Fusion"))->standardPalette();
    QPalette night = standard;
    night.setColor(QPalette::Base, QColor(30, 30, 30));
    night.setColor(QPalette::Text, Qt::white);
    night.setColor(QPalette::Window, QColor(53, 53, 53));
    night.setColor(QPalette::WindowText, Qt::white);
    night.setColor(QPalette::Highlight, QColor(20, 40, 90));
    for (const char* const style : {"Fusion", "Windows"}) {
        QTest::addRow("%s", style) << QString::fromLatin1(style) << standard;
        QTest::addRow("%s, dark desktop", style) << QString::fromLatin1(style) << night;
    }
}

void tst_FocusShown::ofACellInAnyHost()
{
    QFETCH(const QString, style);
    QFETCH(const QPalette, palette);
    QApplication::setStyle(QStyleFactory::create(style));
    QApplication::setPalette(palette);
    const TestDialog dialog;
    dialog->ui.stackedWidget->setCurrentIndex(2);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    auto& cell = *qobject_cast<CTableLineEdit*>(dialog->ui.tableWidget_shortcut->cellWidget(2, 1));
    cell.setFocus();
    QCOMPARE(unseen(stopIn(*dialog)), QString());
}

TRADECONFIG_TEST_MAIN(tst_FocusShown)
#include "tst_FocusShown.moc"
