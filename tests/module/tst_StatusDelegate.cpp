#include "support/Contrast.h"
#include "support/TestMain.h"
#include "tradeConfig/dialog/StatusDelegate.h"

#include <QHeaderView>
#include <QTableWidget>

#include <memory>

namespace {

QImage imageOf(QTableWidget& table)
{
    QImage image(table.size(), QImage::Format_RGB32);
    table.render(&image);
    return image;
}

/// The colour that differs most from @p ground in the first cell.
QColor inkOf(QTableWidget& table, const QColor& ground)
{
    const QImage image = imageOf(table).copy(2, 2, table.columnWidth(0) - 4, 22);
    QColor most = ground;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (contrast(pixel, ground) > contrast(most, ground))
                most = pixel;
        }
    }
    return most;
}

} // namespace

class tst_StatusDelegate : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void oneForAColumn();
    void itemWithoutAForegroundStaysTheToolkits();
    void shadeOnTheItemsOwnGround();
    void shadeOnAStyleSheetsGround();
    void readableColourStays();
    void itemKeepsItsForeground();

private:
    std::unique_ptr<QTableWidget> m_table;
};

void tst_StatusDelegate::init()
{
    m_table = std::make_unique<QTableWidget>(1, 2);
    m_table->horizontalHeader()->hide();
    m_table->verticalHeader()->hide();
    m_table->setFrameShape(QFrame::NoFrame);
    m_table->resize(300, 100);
    QFont font = m_table->font();
    font.setPixelSize(18);
    font.setBold(true);
    for (int column = 0; column < 2; ++column) {
        auto* const item = new QTableWidgetItem(QStringLiteral("WMH"));
        item->setFont(font);
        m_table->setItem(0, column, item);
    }
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Highlight, QColor(20, 40, 120));
    m_table->setPalette(palette);
}

void tst_StatusDelegate::oneForAColumn()
{
    StatusDelegate::paintColumn(*m_table, 0);
    auto* const first = m_table->itemDelegateForColumn(0);
    QVERIFY(qobject_cast<StatusDelegate*>(first));
    QVERIFY(!m_table->itemDelegateForColumn(1));
    StatusDelegate::paintColumn(*m_table, 0);
    QCOMPARE(m_table->itemDelegateForColumn(0), first);
    QCOMPARE(m_table->findChildren<StatusDelegate*>().size(), 1);
}

void tst_StatusDelegate::itemWithoutAForegroundStaysTheToolkits()
{
    for (const bool selected : {false, true}) {
        m_table->item(0, 0)->setSelected(selected);
        m_table->setItemDelegateForColumn(0, nullptr);
        const QImage plain = imageOf(*m_table);
        StatusDelegate::paintColumn(*m_table, 0);
        QCOMPARE(imageOf(*m_table), plain);
    }
}

void tst_StatusDelegate::shadeOnTheItemsOwnGround()
{
    StatusDelegate::paintColumn(*m_table, 0);
    m_table->item(0, 0)->setForeground(Qt::red);
    const QColor ground(250, 220, 220);
    m_table->item(0, 0)->setBackground(ground);
    const QColor ink = inkOf(*m_table, ground);
    QVERIFY2(contrast(ink, ground) >= 4.5, qPrintable(ink.name()));
    QVERIFY2(ink.red() > 2 * ink.green() && ink.red() > 2 * ink.blue(), qPrintable(ink.name()));
}

void tst_StatusDelegate::shadeOnAStyleSheetsGround()
{
    const QColor ground(0, 60, 0);
    m_table->setStyleSheet(QStringLiteral("QTableWidget::item:selected { background: #003c00; }"));
    StatusDelegate::paintColumn(*m_table, 0);
    m_table->item(0, 0)->setForeground(QColor(0, 128, 0));
    m_table->item(0, 0)->setSelected(true);
    const QColor ink = inkOf(*m_table, ground);
    QVERIFY2(contrast(ink, ground) >= 4.5, qPrintable(ink.name()));
    QVERIFY2(ink.green() > ink.red() && ink.green() > ink.blue(), qPrintable(ink.name()));
}

void tst_StatusDelegate::readableColourStays()
{
    StatusDelegate::paintColumn(*m_table, 0);
    m_table->item(0, 0)->setForeground(QColor(0, 100, 0));
    QCOMPARE(inkOf(*m_table, Qt::white), QColor(0, 100, 0));
    m_table->item(0, 0)->setSelected(true);
    m_table->item(0, 0)->setForeground(Qt::green);
    QCOMPARE(inkOf(*m_table, QColor(20, 40, 120)), QColor(Qt::green));
}

void tst_StatusDelegate::itemKeepsItsForeground()
{
    StatusDelegate::paintColumn(*m_table, 0);
    m_table->item(0, 0)->setForeground(Qt::red);
    imageOf(*m_table);
    QCOMPARE(m_table->item(0, 0)->foreground(), QBrush(Qt::red));
}

TRADECONFIG_TEST_MAIN(tst_StatusDelegate)
#include "tst_StatusDelegate.moc"
