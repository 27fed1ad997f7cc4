#include "support/Contrast.h"
#include "support/TestMain.h"
#include "tradeConfig/ReadableColour.h"

class tst_ReadableColour : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void canBeReadOn_data();
    void canBeReadOn();
    void whatCanBeReadStays_data();
    void whatCanBeReadStays();
    void everyGrey();
};

void tst_ReadableColour::canBeReadOn_data()
{
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<QColor>("ground");
    const QColor colours[] = {Qt::red, Qt::green, QColor(0, 128, 0), Qt::blue, Qt::gray};
    const QColor grounds[] = {Qt::white,
                              Qt::black,
                              QColor(248, 249, 251),
                              QColor(31, 36, 44),
                              QColor(37, 99, 217),
                              QColor(118, 118, 118),
                              QColor(207, 223, 250),
                              Qt::red,
                              Qt::green};
    for (const QColor& colour : colours) {
        for (const QColor& ground : grounds)
            QTest::addRow("%s on %s", qPrintable(colour.name()), qPrintable(ground.name()))
                << colour << ground;
    }
}

void tst_ReadableColour::canBeReadOn()
{
    QFETCH(const QColor, colour);
    QFETCH(const QColor, ground);
    const QColor shade = ReadableColour::on(ground, colour);
    QVERIFY2(contrast(shade, ground) >= 4.5, qPrintable(shade.name()));
    // The hue of white and black is none.
    if (colour != QColor(Qt::gray) && shade.lightness() != 255 && shade.lightness() != 0)
        QVERIFY2(qAbs(shade.hslHue() - colour.hslHue()) <= 2, qPrintable(shade.name()));
    // No farther from the colour than it has to be.
    if (shade != colour)
        QVERIFY2(contrast(shade, ground) <= 4.8, qPrintable(shade.name()));
}

void tst_ReadableColour::whatCanBeReadStays_data()
{
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<QColor>("ground");
    QTest::newRow("green on black") << QColor(Qt::green) << QColor(Qt::black);
    QTest::newRow("dark green on white") << QColor(0, 128, 0) << QColor(Qt::white);
    QTest::newRow("red on black") << QColor(Qt::red) << QColor(Qt::black);
    QTest::newRow("a grey on white") << QColor(100, 100, 100) << QColor(Qt::white);
}

void tst_ReadableColour::whatCanBeReadStays()
{
    QFETCH(const QColor, colour);
    QFETCH(const QColor, ground);
    QCOMPARE(ReadableColour::on(ground, colour), colour);
}

void tst_ReadableColour::everyGrey()
{
    for (int level = 0; level < 256; ++level) {
        const QColor ground(level, level, level);
        for (const QColor& colour : {QColor(Qt::red), QColor(Qt::green), QColor(0, 128, 0)})
            QVERIFY2(contrast(ReadableColour::on(ground, colour), ground) >= 4.5,
                     qPrintable(ground.name()));
    }
}

TRADECONFIG_TEST_MAIN(tst_ReadableColour)
#include "tst_ReadableColour.moc"
