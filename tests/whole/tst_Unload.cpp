#include "libskin/SkinTable.h"
#include "support/FakeTrade.h"
#include "support/ModalAnswer.h"
#include "support/TestMain.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPixmapCache>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTranslator>

#include <dlfcn.h>
#include <memory>

namespace {

QString latin(const char* text) { return QString::fromLatin1(text); }

// A library as a host holds it that unloads what it no longer needs.
class Library {
public:
    explicit Library(const char* file)
        : m_handle(dlopen(file, RTLD_NOW | RTLD_LOCAL))
    {
        if (!m_handle)
            qFatal("%s", dlerror());
    }
    ~Library() { dlclose(m_handle); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    template <typename Function> Function* function(const char* name) const
    {
        void* const found = dlsym(m_handle, name);
        if (!found)
            qFatal("%s", dlerror());
        return reinterpret_cast<Function*>(found);
    }

private:
    void* m_handle;
};

int askAssistive(QAccessibleInterface* part)
{
    if (!part || !part->isValid())
        return 0;
    int parts = 1;
    for (const QAccessible::Text which : {QAccessible::Name, QAccessible::Value, QAccessible::Help})
        part->text(which);
    part->rect();
    part->state();
    for (int index = 0; index < part->childCount(); ++index)
        parts += askAssistive(part->child(index));
    return parts;
}

int askAssistive(QWidget& widget)
{
    return askAssistive(QAccessible::queryAccessibleInterface(&widget));
}

template <typename Widget> Widget& control(const QWidget& dialog, const char* name)
{
    auto* const found = dialog.findChild<Widget*>(latin(name));
    if (!found)
        qFatal("no %s", name);
    return *found;
}

} // namespace

// A host that holds nothing of the module but the file: it loads the module, uses it, unloads it
// and goes on. Each function is run in a process of its own, since its end belongs to the test.
class tst_Unload : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void module();
    void moduleWhileTheHostHoldsTheSkin();
    void skinAlone();

private:
    void useModule();
    void useDialog(QWidget& dialog);
    void goOn();
    void goOnWithTheSettings();

    QString m_settingsFile;
    QTranslator m_english;
};

void tst_Unload::initTestCase()
{
    QAccessible::setActive(true);
    QVERIFY(m_english.load(latin(TRANSLATION_FILE)));
    QCoreApplication::installTranslator(&m_english);
}

void tst_Unload::module()
{
    // A module that was unloaded can be loaded again.
    for (int round = 0; round < 2; ++round) {
        useModule();
        goOnWithTheSettings();
        goOn();
        if (QTest::currentTestFailed())
            return;
    }
}

void tst_Unload::moduleWhileTheHostHoldsTheSkin()
{
    const Library skin(SKIN_FILE);
    module();
}

void tst_Unload::useModule()
{
    const Library library(MODULE_FILE);
    FakeTrade trade;
    trade.setDistinctShortcuts();
    trade.parm().uiPageMode = 2;
    trade.parm().splitBaseQty = trade.parm().splitMaxQty = trade.parm().splitMinQty = 1000;
    for (const char* const helper :
         {"ApplicationHomePath", "GetMainExecutableVersion", "GetDiskId", "GetSystemUuid"})
        QVERIFY(library.function<const char*()>(helper)());
    QCOMPARE(library.function<int()>("GetMainExecutableVersionNum")(), 1020003);
    m_settingsFile = QFile::decodeName(library.function<const char*()>("ApplicationHomePath")())
        + latin("/system_settings.ini");

    const auto create = library.function<void*(KivoTrade::ITrade*)>("CreateModuleWidget");
    const std::unique_ptr<QWidget> dialog(static_cast<QWidget*>(create(&trade)));
    useDialog(*dialog);
    QCOMPARE(trade.saves, 1);
}

// All that leaves a text of the module behind in the toolkit.
void tst_Unload::useDialog(QWidget& dialog)
{
    dialog.show();
    for (QStackedWidget* const stack : dialog.findChildren<QStackedWidget*>()) {
        for (int page = 0; page < stack->count(); ++page) {
            stack->setCurrentIndex(page);
            QVERIFY(!dialog.grab().isNull());
        }
    }
    QVERIFY(askAssistive(dialog) > 100);

    // A red field with its tip, a captured key and its conflict.
    control<QCheckBox>(dialog, "checkBox_trade_fc").setChecked(true);
    auto& quantity = control<QLineEdit>(dialog, "lineEdit_trade_low");
    QFocusEvent leaving(QEvent::FocusOut, Qt::TabFocusReason);
    quantity.setText(latin("7"));
    QCoreApplication::sendEvent(&quantity, &leaving);
    QCOMPARE(quantity.styleSheet(), latin("color:red"));
    quantity.setText(latin("1000"));
    QCoreApplication::sendEvent(&quantity, &leaving);
    auto& keys = control<QTableWidget>(dialog, "tableWidget_shortcut");
    QTest::keyClick(keys.cellWidget(0, 1), Qt::Key_F9, Qt::ControlModifier);

    {
        const ModalAnswer answer = ModalAnswer::clicking(latin("No"));
        control<QComboBox>(dialog, "comboBox_system_language").setCurrentIndex(2);
    }
    control<QSpinBox>(dialog, "spinBox_scale").setValue(150);
    const ModalAnswer answer = ModalAnswer([](QWidget* box) {
        QVERIFY(!box->grab().isNull());
        QVERIFY(askAssistive(*box) > 3);
        box->close();
    });
    control<QPushButton>(dialog, "pushButton_confirm").click();
    QVERIFY(dialog.isHidden());
}

// What a host does next: the toolkit meets what was left behind in its caches.
void tst_Unload::goOn()
{
    QWidget window;
    for (const char* const sheet : {"color:red", "color:green", "border:0px;", ""}) {
        auto* const edit = new QLineEdit(&window);
        edit->setFont(QFont(latin("Arial"), 11));
        edit->setStyleSheet(latin(sheet));
        edit->setText(QKeySequence(int(Qt::CTRL) + Qt::Key_F9).toString(QKeySequence::NativeText));
    }
    auto* const table = new QTableWidget(3, 3, &window);
    table->horizontalHeader()->setStyleSheet(latin("QHeaderView::section{color:black}"));
    window.show();
    QVERIFY(!window.grab().isNull());
    QVERIFY(askAssistive(window) > 5);
    qApp->setStyleSheet(latin("QLineEdit{color:blue}"));
    qApp->setStyleSheet(QString());
    QCoreApplication::removeTranslator(&m_english);
    QCoreApplication::installTranslator(&m_english);
    QPixmapCache::clear();
    QCOMPARE(QMetaType::type("NoSuchType"), int(QMetaType::UnknownType));
    QCoreApplication::processEvents();
}

void tst_Unload::goOnWithTheSettings()
{
    {
        QSettings settings(m_settingsFile, QSettings::IniFormat);
        QCOMPARE(settings.value(latin("UI/scale")).toInt(), 150);
        QCOMPARE(settings.value(latin("UI/language")).toString(), latin("en_US"));
        settings.setValue(latin("UI/scale"), 100);
        settings.setValue(latin("Host/key"), 1);
        settings.remove(latin("UI/language"));
        settings.sync();
        QCOMPARE(settings.allKeys(), QStringList({latin("Host/key"), latin("UI/scale")}));
    }
    QVERIFY(QFile::remove(m_settingsFile));
}

void tst_Unload::skinAlone()
{
    for (int round = 0; round < 2; ++round) {
        QPixmap canvas(100, 100);
        canvas.fill(Qt::black);
        QVector<CorvelSkin::SkinProblem> problems;
        {
            const Library library(SKIN_FILE);
            QPainter painter(&canvas);
            // Members, called as the functions that they are to the linker.
            using This = void*;
            const auto skins
                = library.function<This()>("_ZN10CorvelSkin11SkinLibrary8instanceEv")();
            const auto load = library.function<bool(This, const QString&)>(
                "_ZN10CorvelSkin11SkinLibrary4loadERK7QString");
            QVERIFY(load(skins, latin("dark")));
            const auto skin = library.function<This()>("_ZN10CorvelSkin5CSkin8InstanceEv")();
            library.function<QRectF(This, QPainter&, QRectF, int, QString, QString, QString)>(
                "_ZN10CorvelSkin5CSkin8drawTextER8QPainter6QRectFi7QStringS4_S4_")(
                skin, painter, canvas.rect(), Qt::AlignCenter, latin("SwitchFgNormal"),
                latin("Switch"), latin("text"));
            library.function<void(This, QPainter&, QRectF, QString, int, int, bool, bool)>(
                "_ZN10CorvelSkin5CSkin9drawImageER8QPainter6QRectF7QStringiibb")(
                skin, painter, QRectF(0, 0, 20, 20), latin("logo"), 1, 0, false, true);
            library.function<void(This, QPainter&, QRectF, QString)>(
                "_ZN10CorvelSkin5CSkin8fillRectER8QPainter6QRectF7QString")(
                skin, painter, QRectF(0, 90, 100, 10), latin("no such key"));
            QVERIFY(!load(skins, latin("no such skin")));
            problems = library.function<QVector<CorvelSkin::SkinProblem>(This)>(
                "_ZNK10CorvelSkin11SkinLibrary8problemsEv")(skins);
        }
        QVERIFY(canvas.toImage() != QImage());
        goOn();
        QCOMPARE(problems.size(), 1);
        QCOMPARE(problems.first().reason, latin("the folder is missing"));
    }
}

TRADECONFIG_TEST_MAIN(tst_Unload)
#include "tst_Unload.moc"
