#include "support/TestMain.h"

#include <QPainter>
#include <QSvgRenderer>
#include <QtEndian>

#include <cstdlib>

namespace {

const QString folder = QStringLiteral(SOURCE_DIRECTORY "/client/icon/");

/// The blocks of an icon file by their types.
QMap<QByteArray, QByteArray> blocksOf(const QByteArray& bytes)
{
    constexpr int headerSize = 8;
    QMap<QByteArray, QByteArray> blocks;
    for (int at = headerSize; at + headerSize <= bytes.size();) {
        const int size = int(qFromBigEndian<quint32>(bytes.constData() + at + 4));
        if (size < headerSize)
            return {};
        blocks.insert(bytes.mid(at, 4), bytes.mid(at + headerSize, size - headerSize));
        at += size;
    }
    return blocks;
}

/// Up to 127 says how many bytes less one follow; more, how often the next byte is repeated.
QByteArray unpacked(const QByteArray& packed)
{
    QByteArray bytes;
    for (int at = 0; at < packed.size();) {
        const int head = uchar(packed.at(at++));
        if (head < 128) {
            bytes += packed.mid(at, head + 1);
            at += head + 1;
        } else {
            bytes += QByteArray(head - 125, packed.at(at++));
        }
    }
    return bytes;
}

/// Whether both show the same, but for what one toolkit rounds otherwise than another.
bool alike(const QImage& one, const QImage& other)
{
    const QImage first = one.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage second = other.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (first.size() != second.size())
        return false;
    for (int y = 0; y < first.height(); ++y) {
        const uchar* const left = first.constScanLine(y);
        const uchar* const right = second.constScanLine(y);
        for (int byte = 0; byte < first.width() * 4; ++byte) {
            if (std::abs(left[byte] - right[byte]) > 4)
                return false;
        }
    }
    return true;
}

} // namespace

/// The icon file that is kept in the tree, beside the drawing that it was made from.
class tst_AppIcon : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void showsTheDrawing_data();
    void showsTheDrawing();
    void nothingElse();

private:
    QMap<QByteArray, QByteArray> m_blocks;
};

void tst_AppIcon::initTestCase()
{
    QFile file(folder + QStringLiteral("tradeclient.icns"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QCOMPARE(bytes.left(4), QByteArray("icns"));
    QCOMPARE(qFromBigEndian<quint32>(bytes.constData() + 4), quint32(bytes.size()));
    m_blocks = blocksOf(bytes);
}

void tst_AppIcon::showsTheDrawing_data()
{
    QTest::addColumn<int>("pixels");
    QTest::addColumn<QByteArray>("mask");
    QTest::newRow("is32") << 16 << QByteArray("s8mk");
    QTest::newRow("il32") << 32 << QByteArray("l8mk");
    QTest::newRow("ic11") << 32 << QByteArray();
    QTest::newRow("ic12") << 64 << QByteArray();
    QTest::newRow("ic07") << 128 << QByteArray();
    QTest::newRow("ic13") << 256 << QByteArray();
    QTest::newRow("ic08") << 256 << QByteArray();
    QTest::newRow("ic14") << 512 << QByteArray();
    QTest::newRow("ic09") << 512 << QByteArray();
    QTest::newRow("ic10") << 1024 << QByteArray();
}

void tst_AppIcon::showsTheDrawing()
{
    QFETCH(const int, pixels);
    QFETCH(const QByteArray, mask);
    const QByteArray content = m_blocks.value(QTest::currentDataTag());
    QImage shown;
    if (mask.isEmpty()) {
        QVERIFY(shown.loadFromData(content, "PNG"));
    } else {
        const int count = pixels * pixels;
        const QByteArray channels = unpacked(content);
        const QByteArray alpha = m_blocks.value(mask);
        QCOMPARE(channels.size(), 3 * count);
        QCOMPARE(alpha.size(), count);
        shown = QImage(pixels, pixels, QImage::Format_ARGB32);
        for (int at = 0; at < count; ++at) {
            shown.setPixel(at % pixels, at / pixels,
                           qRgba(uchar(channels.at(at)), uchar(channels.at(count + at)),
                                 uchar(channels.at(2 * count + at)), uchar(alpha.at(at))));
        }
    }

    QSvgRenderer drawing(folder + QStringLiteral("tradeclient.svg"));
    QVERIFY(drawing.isValid());
    QImage expected(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::transparent);
    QPainter painter(&expected);
    drawing.render(&painter);
    painter.end();
    QVERIFY2(alike(shown, expected), "run tools/make-icon after changing the drawing");
}

void tst_AppIcon::nothingElse() { QCOMPARE(m_blocks.size(), 12); }

TRADECONFIG_TEST_MAIN(tst_AppIcon)
#include "tst_AppIcon.moc"
