#include "appearance/SkinStyle.h"
#include "appearance/SkinSwitcher.h"
#include "client/DataDirectory.h"
#include "client/MainWindow.h"
#include "client/SettingsModule.h"
#include "client/TradeCore.h"
#include "gallery/Gallery.h"
#include "libskin/SkinLibrary.h"
#include "support/Contrast.h"
#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "support/TextInk.h"
#include "tradeConfig/MessageBox.h"
#include "tradeConfig/NavWidget.h"
#include "tradeConfig/SwitchEx.h"
#include "tradeConfig/TableLineEdit.h"
#include "tradeConfig/TipLabel.h"

#include <QGraphicsOpacityEffect>
#include <QHeaderView>
#include <QMenuBar>
#include <QPainter>
#include <QStyle>
#include <QStyleFactory>
#include <QToolTip>

#include <memory>

using CorvelSkin::SkinLibrary;

namespace {

constexpr double textContrast = 4.5;
constexpr double disabledContrast = 3.0;

/// Where strokes are thinnest.
constexpr double scale = 1.0;

/// One text of a window.
struct Text {
    QString name;
    QRect area; ///< in the window; no text reaches its right edge
    bool enabled = true;
};

/// The colours of a text and of what is behind it, where they differ most.
struct Reading {
    QColor text;
    QColor ground;
    double contrast = 1.0;
};

Reading readingOf(const QImage& image, const QRect& area)
{
    const QRect pixels
        = QRect((QPointF(area.topLeft()) * scale).toPoint(), area.size() * scale) & image.rect();
    Reading most;
    QRgb seenOn = 0;
    QSet<QRgb> seen;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        const QColor ground = image.pixelColor(pixels.right(), y);
        if (seenOn != ground.rgb())
            seen.clear();
        seenOn = ground.rgb();
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (seen.contains(pixel))
                continue;
            seen.insert(pixel);
            const double here = contrast(QColor(pixel), ground);
            if (here > most.contrast)
                most = {QColor(pixel), ground, here};
        }
    }
    return most;
}

bool isText(const QString& text) { return !text.trimmed().isEmpty(); }

template <typename Option, typename Widget> Option optionOf(const Widget& widget)
{
    Option option;
    widget.initStyleOption(&option);
    return option;
}

/// Where a standard control shows its text; empty if it has none.
QRect textArea(const QWidget& widget)
{
    const QStyle& style = *widget.style();
    if (const auto* const label = qobject_cast<const QLabel*>(&widget))
        return isText(label->text()) ? label->rect() : QRect();
    if (const auto* const box = qobject_cast<const QCheckBox*>(&widget)) {
        const auto option = optionOf<QStyleOptionButton>(*box);
        return style.subElementRect(QStyle::SE_CheckBoxContents, &option, box);
    }
    if (const auto* const button = qobject_cast<const QPushButton*>(&widget)) {
        const auto option = optionOf<QStyleOptionButton>(*button);
        return isText(button->text())
            ? style.subElementRect(QStyle::SE_PushButtonContents, &option, button)
                  .adjusted(2, 3, -2, -3)
            : QRect();
    }
    if (const auto* const combo = qobject_cast<const QComboBox*>(&widget)) {
        const auto option = optionOf<QStyleOptionComboBox>(*combo);
        return isText(combo->currentText()) ? style.subControlRect(
                   QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo)
                                            : QRect();
    }
    if (const auto* const edit = qobject_cast<const QLineEdit*>(&widget))
        return isText(edit->displayText() + edit->placeholderText())
            ? edit->rect().adjusted(3, 4, -3, -4)
            : QRect();
    return QRect();
}

/// Or faded, and to be read no more.
bool isFading(const QWidget& widget)
{
    const auto* const effect = qobject_cast<QGraphicsOpacityEffect*>(widget.graphicsEffect());
    return effect && effect->opacity() < 1.0;
}

/// Every text that @p window shows at the moment.
QVector<Text> textsOf(const QWidget& window)
{
    QVector<Text> texts;
    for (const auto* const widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window) || isFading(*widget))
            continue;
        const auto add = [&](const QRect& area, const QString& part = QString()) {
            // What is scrolled out of sight is there, too.
            const QRect around = widget->parentWidget()->rect().translated(-widget->pos());
            if (area.isEmpty() || !(widget->rect() & around).contains(area))
                return;
            const QString name = QString::fromLatin1(widget->metaObject()->className())
                + QLatin1Char(' ') + widget->objectName() + QLatin1Char(' ') + part;
            texts.append(
                {name, area.translated(widget->mapTo(&window, QPoint())), widget->isEnabled()});
        };
        add(textArea(*widget));
        if (const auto* const list = qobject_cast<const CNavWidget*>(widget)) {
            for (int i = 0; i < list->count; ++i)
                add(QRect(20, 50 * i + 15, list->width() - 24, 20), list->items.at(i));
        } else if (const auto* const bar = qobject_cast<const CSwitchEx*>(widget)) {
            for (const SwitchItem* const item : bar->items + bar->endItems) {
                const int index = bar->items.indexOf(const_cast<SwitchItem*>(item));
                const bool hidden = index >= 0
                    && (index < bar->firstIndex || index >= bar->firstIndex + bar->visibleCount);
                const bool image = item->isImage
                    && (bar->mode == CSwitchEx::ModeFlatButton
                        || bar->mode == CSwitchEx::ModeImageButton);
                const bool painted
                    = bar->mode != CSwitchEx::ModeImageButton && !item->isSeparator && !hidden;
                if (painted && !image)
                    add(item->rect.toRect().adjusted(3, 3, -3, -3), item->label);
            }
        } else if (const auto* const header = qobject_cast<const QHeaderView*>(widget)) {
            for (int i = 0; i < header->count(); ++i) {
                if (header->orientation() == Qt::Horizontal)
                    add(QRect(header->sectionViewportPosition(i), 0, header->sectionSize(i),
                              header->height())
                            .adjusted(2, 4, -4, -4),
                        QString::number(i));
            }
        } else if (const auto* const menus = qobject_cast<const QMenuBar*>(widget)) {
            for (QAction* const action : menus->actions())
                add(menus->actionGeometry(action).adjusted(1, 1, -1, -1), action->text());
        }
        const auto* const view = qobject_cast<const QAbstractItemView*>(widget->parentWidget());
        if (!view || view->viewport() != widget || qobject_cast<const QHeaderView*>(view))
            continue;
        for (int row = 0; row < view->model()->rowCount(); ++row) {
            for (int column = 0; column < view->model()->columnCount(); ++column) {
                const QModelIndex index = view->model()->index(row, column);
                if (isText(index.data().toString()) && !view->indexWidget(index))
                    add(view->visualRect(index).adjusted(2, 2, -2, -2), index.data().toString());
            }
        }
    }
    return texts;
}

QImage imageOf(QWidget& window)
{
    QCoreApplication::processEvents();
    return renderedAt(window, scale);
}

/// What is wrong with the first text of @p window that cannot be read; empty if all can be.
QString unreadableIn(QWidget& window, int least)
{
    const QImage image = imageOf(window);
    const QVector<Text> texts = textsOf(window);
    for (const Text& text : texts) {
        const Reading reading = readingOf(image, text.area);
        if (reading.contrast < (text.enabled ? textContrast : disabledContrast))
            return QStringLiteral("%1: %2 on %3, %4 to 1")
                .arg(text.name, reading.text.name(), reading.ground.name())
                .arg(reading.contrast);
    }
    return texts.size() >= least
        ? QString()
        : QStringLiteral("%1 texts, %2 expected").arg(texts.size()).arg(least);
}

} // namespace

/// The colours of every text as they come to the screen, in the client's style and every skin.
class tst_Legibility : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void everyPage_data();
    void everyPage();
    void everyDisabledPage_data();
    void everyDisabledPage();
    void clientWindow_data();
    void clientWindow();
    void galleryPages_data();
    void galleryPages();
    void messageBoxes_data();
    void messageBoxes();
    void popups_data();
    void popups();
    void quantityMarks_data();
    void quantityMarks();
    void marksFollowTheSkin();
    void hotkeyMarks_data();
    void hotkeyMarks();
    void tips_data();
    void tips();

private:
    static void addSkins();
    static void addHosts();
    static void setHost();

    const DataDirectory m_directory{QDir::homePath()};
    const SkinSwitcher m_skins;
};

void tst_Legibility::initTestCase() { QApplication::setStyle(new SkinStyle); }

void tst_Legibility::addSkins()
{
    QTest::addColumn<QString>("skin");
    for (const char* const skin : {"light", "dark"})
        QTest::newRow(skin) << QString::fromLatin1(skin);
}

namespace {

void showPage(CTradeConfigWidget& dialog, QWidget& page)
{
    auto* const stack = qobject_cast<QStackedWidget*>(page.parentWidget());
    stack->setCurrentWidget(&page);
    dialog.ui.stackedWidget->setCurrentWidget(stack->parentWidget());
}

QVector<QWidget*> pagesOf(const CTradeConfigWidget& dialog)
{
    QVector<QWidget*> pages;
    for (const QStackedWidget* const stack :
         {dialog.ui.stackedWidget_system, dialog.ui.stackedWidget_trade,
          dialog.ui.stackedWidget_shortcut}) {
        for (int i = 0; i < stack->count(); ++i)
            pages << stack->widget(i);
    }
    return pages;
}

} // namespace

void tst_Legibility::everyPage_data() { addSkins(); }

void tst_Legibility::everyPage()
{
    QFETCH(const QString, skin);
    QVERIFY(SkinLibrary::instance()->load(skin));
    const TestDialog dialog;
    dialog->ui.checkBox_trade_fc->setChecked(true);
    dialog->ui.checkBox_trade_kc_fc->setChecked(true);
    dialog->show();
    for (QWidget* const page : pagesOf(*dialog)) {
        showPage(*dialog, *page);
        const QString wrong = unreadableIn(*dialog, 10);
        QVERIFY2(wrong.isEmpty(), qPrintable(page->objectName() + QStringLiteral(": ") + wrong));
    }
}

void tst_Legibility::everyDisabledPage_data() { addSkins(); }

void tst_Legibility::everyDisabledPage()
{
    QFETCH(const QString, skin);
    QVERIFY(SkinLibrary::instance()->load(skin));
    const TestDialog dialog;
    dialog->show();
    for (QWidget* const page : pagesOf(*dialog)) {
        page->setEnabled(false);
        showPage(*dialog, *page);
        const QString wrong = unreadableIn(*dialog, 10);
        QVERIFY2(wrong.isEmpty(), qPrintable(page->objectName() + QStringLiteral(": ") + wrong));
    }
}

void tst_Legibility::clientWindow_data() { addSkins(); }

void tst_Legibility::clientWindow()
{
    QFETCH(const QString, skin);
    QVERIFY(SkinLibrary::instance()->load(skin));
    const SettingsModule module;
    TradeCore core(m_directory, TradeCore::Storage::None);
    QVERIFY(core.load().isClean());
    MainWindow window(module, core, m_directory);
    window.show();
    QString wrong = unreadableIn(window, 30);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));

    // With changes, and a row selected.
    core.GetTradeParm()->lockMinutes += 1;
    core.GetTradeParm()->defaultBuyPrice += 1;
    core.SaveTradeParm();
    auto* const table = window.findChild<QTableView*>(QStringLiteral("tableView_record"));
    for (const int row : {0, 1}) {
        table->selectRow(row);
        wrong = unreadableIn(window, 30);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    }
    window.setEnabled(false);
    wrong = unreadableIn(window, 30);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

void tst_Legibility::galleryPages_data() { addSkins(); }

void tst_Legibility::galleryPages()
{
    QFETCH(const QString, skin);
    QVERIFY(SkinLibrary::instance()->load(skin));
    Gallery gallery;
    gallery.show();
    for (const Gallery::Page& page : gallery.pages()) {
        const QString wrong = unreadableIn(*page.content, 2);
        QVERIFY2(wrong.isEmpty(), qPrintable(page.name + QStringLiteral(": ") + wrong));
    }
}

void tst_Legibility::messageBoxes_data() { addSkins(); }

void tst_Legibility::messageBoxes()
{
    QFETCH(const QString, skin);
    QVERIFY(SkinLibrary::instance()->load(skin));
    CMessageBox own(nullptr, QMessageBox::Question, QStringLiteral("现在重启吗"),
                    QStringLiteral("提示"), QMessageBox::Yes | QMessageBox::No, 3);
    own.show();
    QString wrong = unreadableIn(own, 4);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    QMessageBox standard(QMessageBox::Information, QStringLiteral("提示"),
                         QStringLiteral("存在不合理的修改参数"), QMessageBox::Ok);
    standard.show();
    wrong = unreadableIn(standard, 2);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

void tst_Legibility::popups_data() { addSkins(); }

void tst_Legibility::popups()
{
    QFETCH(const QString, skin);
    QVERIFY(SkinLibrary::instance()->load(skin));
    QMenu menu;
    menu.addAction(QStringLiteral("设置"));
    menu.addAction(QStringLiteral("退出"))->setEnabled(false);
    menu.setActiveAction(menu.actions().first());
    menu.popup(QPoint());
    const auto readable = [](QWidget& popup, const QRect& area, double wanted) {
        const Reading reading = readingOf(renderedAt(popup, scale), area);
        return reading.contrast >= wanted
            ? QString()
            : QStringLiteral("%1 on %2").arg(reading.text.name(), reading.ground.name());
    };
    for (QAction* const action : menu.actions())
        QCOMPARE(readable(menu, menu.actionGeometry(action).adjusted(1, 1, -2, -1),
                          action->isEnabled() ? textContrast : disabledContrast),
                 QString());

    QComboBox combo;
    combo.addItems({QStringLiteral("买一"), QStringLiteral("卖一")});
    combo.show();
    combo.showPopup();
    for (int row = 0; row < 2; ++row) {
        QWidget& list = *combo.view()->viewport();
        const QRect area = combo.view()->visualRect(combo.model()->index(row, 0));
        QCOMPARE(readable(list, area.adjusted(1, 1, -2, -1), textContrast), QString());
    }
    combo.hidePopup();

    QToolTip::showText(QPoint(), QStringLiteral("关闭"));
    int tips = 0;
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (!widget->inherits("QTipLabel"))
            continue;
        QCOMPARE(readable(*widget, widget->rect().adjusted(2, 2, -2, -2), textContrast), QString());
        ++tips;
    }
    QCOMPARE(tips, 1);
    QToolTip::hideText();
}

/// The client in each skin, and other hosts: their style, the palette of their desktop.
void tst_Legibility::addHosts()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<QString>("skin");
    QTest::addColumn<QPalette>("palette");
    const QPalette standard = QStyleFactory::create(QStringLiteral("Fusion"))->standardPalette();
    QPalette night(QColor(60, 60, 60), QColor(50, 50, 50));
    for (const char* const skin : {"light", "dark"})
        QTest::addRow("client, %s", skin) << QString() << QString::fromLatin1(skin) << QPalette();
    for (const char* const style : {"Fusion", "Windows"}) {
        QTest::addRow("%s", style) << QString::fromLatin1(style) << QString() << standard;
        QTest::addRow("%s, dark desktop", style)
            << QString::fromLatin1(style) << QString() << night;
    }
}

void tst_Legibility::setHost()
{
    QFETCH(const QString, style);
    QFETCH(const QString, skin);
    QFETCH(const QPalette, palette);
    if (style.isEmpty()) {
        QApplication::setStyle(new SkinStyle);
        QVERIFY(SkinLibrary::instance()->load(skin));
    } else {
        QApplication::setStyle(QStyleFactory::create(style));
        QApplication::setPalette(palette);
    }
}

namespace {

bool isRed(const QColor& colour)
{
    const int hue = colour.hslHue();
    return colour.hslSaturation() > 100 && (hue <= 10 || hue >= 350);
}

bool isGreen(const QColor& colour)
{
    return colour.hslSaturation() > 100 && qAbs(colour.hslHue() - 120) <= 10;
}

/// What is wrong with the mark that is painted in @p area; empty if nothing is.
QString wrongMark(QWidget& window, const QRect& area, bool accepted)
{
    const Reading reading = readingOf(imageOf(window), area);
    const bool hue = accepted ? isGreen(reading.text) : isRed(reading.text);
    return reading.contrast >= textContrast && hue
        ? QString()
        : QStringLiteral("%1 on %2, %3 to 1")
              .arg(reading.text.name(), reading.ground.name())
              .arg(reading.contrast);
}

QString wrongMark(QWidget& window, const QWidget& field, bool accepted)
{
    return wrongMark(window,
                     field.rect().adjusted(4, 4, -4, -4).translated(field.mapTo(&window, QPoint())),
                     accepted);
}

void leave(QWidget& field)
{
    QFocusEvent out(QEvent::FocusOut);
    QCoreApplication::sendEvent(&field, &out);
}

} // namespace

void tst_Legibility::quantityMarks_data() { addHosts(); }

void tst_Legibility::quantityMarks()
{
    setHost();
    const TestDialog dialog;
    dialog->show();
    dialog->ui.checkBox_trade_fc->setChecked(true);
    showPage(*dialog, *dialog->ui.page_8);
    dialog->ui.pushButton_confirm->setFocus();
    QLineEdit& field = *dialog->ui.lineEdit_trade_baseCount;
    for (const bool accepted : {false, true, false}) {
        field.setText(accepted ? QStringLiteral("800") : QStringLiteral("8"));
        leave(field);
        QCOMPARE(field.styleSheet(),
                 accepted ? QStringLiteral("color:green") : QStringLiteral("color:red"));
        QCOMPARE(wrongMark(*dialog, field, accepted), QString());
        // Whatever becomes of the text.
        field.clear();
        QTest::keyClicks(&field, QStringLiteral("4711"));
        QCOMPARE(field.text(), QStringLiteral("4711"));
        QCOMPARE(wrongMark(*dialog, field, accepted), QString());
        dialog->ui.checkBox_trade_fc->setChecked(false);
        QCOMPARE(wrongMark(*dialog, field, accepted), QString());
        dialog->ui.checkBox_trade_fc->setChecked(true);
        QCOMPARE(wrongMark(*dialog, field, accepted), QString());
        // An input method's text has formats of its own.
        QInputMethodEvent composing(QStringLiteral("8"), {});
        QCoreApplication::sendEvent(&field, &composing);
        QInputMethodEvent composed;
        QCoreApplication::sendEvent(&field, &composed);
        QCOMPARE(wrongMark(*dialog, field, accepted), QString());
        QCOMPARE(field.text(), QStringLiteral("4711"));
    }
}

void tst_Legibility::marksFollowTheSkin()
{
    QApplication::setStyle(new SkinStyle);
    const TestDialog dialog;
    dialog->show();
    dialog->ui.checkBox_trade_fc->setChecked(true);
    showPage(*dialog, *dialog->ui.page_8);
    for (const bool accepted : {false, true}) {
        QLineEdit& field = *dialog->ui.lineEdit_trade_high;
        field.setText(accepted ? QStringLiteral("800") : QStringLiteral("8"));
        leave(field);
        for (const char* const skin : {"light", "dark", "light"}) {
            QVERIFY(SkinLibrary::instance()->load(QString::fromLatin1(skin)));
            QCOMPARE(wrongMark(*dialog, field, accepted), QString());
        }
    }
}

void tst_Legibility::hotkeyMarks_data() { addHosts(); }

void tst_Legibility::hotkeyMarks()
{
    setHost();
    const TestDialog dialog;
    dialog->show();
    showPage(*dialog, *dialog->ui.page_16);
    QTableWidget& table = *dialog->ui.tableWidget_shortcut;
    constexpr int row = 2;
    const QTableWidgetItem& status = *table.item(row, 2);
    auto& editor = *qobject_cast<CTableLineEdit*>(table.cellWidget(row, 1));
    for (const bool accepted : {false, true, false}) {
        QTest::keyClick(&editor, accepted ? Qt::Key_F9 : Qt::Key_F5);
        QCOMPARE(status.foreground(), QBrush(accepted ? Qt::green : Qt::red));
        QVERIFY(editor.isReadOnly());
        for (const bool selected : {false, true}) {
            table.clearSelection();
            if (selected)
                table.selectRow(row);
            const QRect cell = table.visualItemRect(&status).translated(
                table.viewport()->mapTo(dialog.get(), QPoint()));
            QCOMPARE(wrongMark(*dialog, cell.adjusted(2, 2, -2, -3), accepted), QString());
            QCOMPARE(wrongMark(*dialog, editor, accepted), QString());
        }
    }
}

void tst_Legibility::tips_data() { addHosts(); }

void tst_Legibility::tips()
{
    setHost();
    QWidget window;
    window.resize(300, 100);
    for (const bool accepted : {false, true}) {
        CTipLabel tip(QStringLiteral("不能小于100股"), !accepted, &window);
        tip.resize(200, 24);
        tip.show();
        window.show();
        QCOMPARE(tip.styleSheet(),
                 accepted ? QStringLiteral("color:green;") : QStringLiteral("color:red;"));
        QCOMPARE(wrongMark(window, tip, accepted), QString());
    }
}

TRADECONFIG_TEST_MAIN(tst_Legibility)
#include "tst_Legibility.moc"
