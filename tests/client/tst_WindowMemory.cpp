#include "client/DataDirectory.h"
#include "client/RecordView.h"
#include "client/WindowMemory.h"
#include "support/Files.h"
#include "support/TestMain.h"

#include <QDir>
#include <QGuiApplication>
#include <QLineEdit>
#include <QScreen>
#include <QTableView>

#include <memory>

/// How the client's window comes back.
class tst_WindowMemory : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void fits_data();
    void fits();
    void comesBackAsItWas();
    void comesBackMaximised();
    void firstStartChangesNothing();
    void survivesASenselessFile_data();
    void survivesASenselessFile();
    void correctsWhatDoesNotFit();
    void keepsWhatElseIsInItsFile();

private:
    void keep(const QByteArray& content) const { writeFile(m_directory->windowFile(), content); }

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<DataDirectory> m_directory;
};

void tst_WindowMemory::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    m_directory = std::make_unique<DataDirectory>(m_home->path());
}

void tst_WindowMemory::fits_data()
{
    QTest::addColumn<QRect>("wanted");
    QTest::addColumn<QRect>("result");
    const auto row = [](const char* tag, const QRect& wanted, const QRect& result) {
        QTest::newRow(tag) << wanted << result;
    };
    // A screen of 1000 x 800, and one of 600 x 500 to its right.
    row("inside", {10, 20, 300, 200}, {10, 20, 300, 200});
    row("fills", {0, 0, 1000, 800}, {0, 0, 1000, 800});
    row("too large", {0, 0, 3000, 2000}, {0, 0, 1000, 800});
    row("too large for the second", {1100, 10, 900, 700}, {1000, 0, 600, 500});
    row("out on the left", {-50, 20, 300, 200}, {0, 20, 300, 200});
    row("out above", {10, -20, 300, 200}, {10, 0, 300, 200});
    row("out below", {10, 700, 300, 200}, {10, 600, 300, 200});
    row("between both, more on the first", {800, 10, 300, 200}, {700, 10, 300, 200});
    row("between both, more on the second", {900, 10, 300, 200}, {1000, 10, 300, 200});
    row("on neither", {5000, 5000, 300, 200}, {700, 600, 300, 200});
    row("on neither, before", {-5000, -5000, 300, 200}, {0, 0, 300, 200});
}

void tst_WindowMemory::fits()
{
    QFETCH(const QRect, wanted);
    QFETCH(const QRect, result);
    QCOMPARE(WindowMemory::fitted(wanted, {QRect(0, 0, 1000, 800), QRect(1000, 0, 600, 500)}),
             result);
}

void tst_WindowMemory::comesBackAsItWas()
{
    {
        QWidget window;
        RecordView view;
        window.setGeometry(40, 50, 500, 400);
        view.table()->setColumnWidth(0, 123);
        view.table()->setColumnWidth(3, 77);
        view.search()->setText(QStringLiteral("@价格 50% =;"));
        WindowMemory::keep(*m_directory, window, view);
    }
    QWidget window;
    RecordView view;
    WindowMemory::restore(*m_directory, window, view);
    QCOMPARE(window.geometry(), QRect(40, 50, 500, 400));
    QVERIFY(!window.isMaximized());
    QCOMPARE(view.table()->columnWidth(0), 123);
    QCOMPARE(view.table()->columnWidth(3), 77);
    QCOMPARE(view.search()->text(), QStringLiteral("@价格 50% =;"));
    QCOMPARE(QDir(m_directory->configDirectory()).entryList(QDir::Files),
             QStringList{QStringLiteral("window.ini")});
}

void tst_WindowMemory::comesBackMaximised()
{
    keep("[Window]\nx=40\ny=50\nwidth=500\nheight=400\nmaximized=1\n");
    QWidget window;
    RecordView view;
    WindowMemory::restore(*m_directory, window, view);
    QVERIFY(window.isMaximized());
    QCOMPARE(window.size(), QSize(500, 400));
}

void tst_WindowMemory::firstStartChangesNothing()
{
    QWidget window;
    window.resize(321, 234);
    RecordView view;
    const int width = view.table()->columnWidth(1);
    WindowMemory::restore(*m_directory, window, view);
    QCOMPARE(window.size(), QSize(321, 234));
    QCOMPARE(view.table()->columnWidth(1), width);
    QVERIFY2(QDir(m_home->path()).isEmpty(), "reading makes nothing");
}

void tst_WindowMemory::survivesASenselessFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no numbers") << QByteArray("[Window]\nx=a\nwidth=b\nheight=c\n");
    QTest::newRow("nothing high") << QByteArray("[Window]\nx=1\ny=1\nwidth=500\nheight=0\n");
    QTest::newRow("negative") << QByteArray("[Window]\nwidth=-5\nheight=-5\n[Columns]\n1=-3\n");
    QTest::newRow("beyond numbers") << QByteArray("[Window]\nwidth=99999999999\nheight=1\n");
    QTest::newRow("object") << QByteArray(
        "[Window]\nwidth=@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xf0zz)\nheight=3\n");
}

void tst_WindowMemory::survivesASenselessFile()
{
    QFETCH(const QByteArray, content);
    keep(content);
    QWidget window;
    window.resize(321, 234);
    RecordView view;
    const int width = view.table()->columnWidth(1);
    WindowMemory::restore(*m_directory, window, view);
    QCOMPARE(window.size(), QSize(321, 234));
    QCOMPARE(view.table()->columnWidth(1), width);
}

void tst_WindowMemory::correctsWhatDoesNotFit()
{
    keep("[Window]\nx=9000\ny=-9000\nwidth=20000\nheight=20000\n[Columns]\n0=1\n1=100000\n");
    QWidget window;
    RecordView view;
    WindowMemory::restore(*m_directory, window, view);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QVERIFY(screen.contains(window.geometry()));
    QVERIFY2(window.height() < screen.height(), "room for its title");
    QCOMPARE(view.table()->columnWidth(0), 40);
    QCOMPARE(view.table()->columnWidth(1), 2000);
}

void tst_WindowMemory::keepsWhatElseIsInItsFile()
{
    keep("[Later]\nkey=7\n");
    const QWidget window;
    const RecordView view;
    WindowMemory::keep(*m_directory, window, view);
    QVERIFY(contentOf(m_directory->windowFile()).contains("[Later]\nkey=7\n"));
}

TRADECONFIG_TEST_MAIN(tst_WindowMemory)
#include "tst_WindowMemory.moc"
