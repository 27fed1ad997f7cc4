#include "support/Contrast.h"
#include "support/TestMain.h"
#include "tradeConfig/MarkShade.h"

#include <QLineEdit>

#include <memory>

namespace {

const QString redSheet = QStringLiteral("color:red");

/// The colour of @p edit's text.
QColor inkOf(QLineEdit& edit)
{
    const QColor ground = edit.palette().color(QPalette::Base);
    const QImage image = edit.grab(edit.rect().adjusted(4, 4, -4, -4)).toImage();
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

class tst_MarkShade : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void shadeComesWithTheSheet();
    void shadeFollowsThePalette();
    void anotherSheetTakesOver();
    void editNoticesNothing();
    void oneForAnEdit();
    void othersFilterOnce();

private:
    std::unique_ptr<QWidget> m_window;
    QLineEdit* m_edit = nullptr;
};

void tst_MarkShade::init()
{
    m_window = std::make_unique<QWidget>();
    // Takes the focus: a cursor has a colour of its own.
    auto* const other = new QLineEdit(m_window.get());
    m_edit = new QLineEdit(QStringLiteral("WMH"), m_window.get());
    m_edit->setGeometry(0, 40, 200, 40);
    QFont font = m_edit->font();
    font.setPixelSize(20);
    font.setBold(true);
    m_edit->setFont(font);
    m_window->show();
    other->setFocus();
}

void tst_MarkShade::shadeComesWithTheSheet()
{
    QCOMPARE(inkOf(*m_edit), QColor(Qt::black));
    MarkShade::replaceSheet(*m_edit, redSheet);
    QCOMPARE(m_edit->styleSheet(), redSheet);
    const QColor ink = inkOf(*m_edit);
    QVERIFY2(contrast(ink, Qt::white) >= 4.5, qPrintable(ink.name()));
    QVERIFY2(ink.red() > 200 && ink.green() == 0 && ink.blue() == 0, qPrintable(ink.name()));
}

void tst_MarkShade::shadeFollowsThePalette()
{
    MarkShade::replaceSheet(*m_edit, redSheet);
    const QPalette day = QApplication::palette();
    QPalette night = day;
    night.setColor(QPalette::Base, QColor(60, 60, 60));
    QApplication::setPalette(night);
    // A sheet keeps the palette of the moment in which it was set.
    m_edit->setStyleSheet(QString());
    m_edit->setStyleSheet(redSheet);
    const QColor ink = inkOf(*m_edit);
    QApplication::setPalette(day);
    QVERIFY2(contrast(ink, QColor(60, 60, 60)) >= 4.5, qPrintable(ink.name()));
    QVERIFY2(ink.red() == 255 && ink.green() > 100, qPrintable(ink.name()));
}

void tst_MarkShade::anotherSheetTakesOver()
{
    MarkShade::replaceSheet(*m_edit, redSheet);
    MarkShade::replaceSheet(*m_edit, QStringLiteral("color:green"));
    QCOMPARE(inkOf(*m_edit), QColor(0, 128, 0));
    m_edit->setStyleSheet(QString());
    QCOMPARE(inkOf(*m_edit), QColor(Qt::black));
}

void tst_MarkShade::editNoticesNothing()
{
    m_edit->setText(QStringLiteral("first"));
    m_edit->insert(QStringLiteral(" second"));
    m_edit->setCursorPosition(3);
    m_edit->setSelection(1, 2);
    const QSignalSpy changed(m_edit, &QLineEdit::textChanged);
    const QSignalSpy edited(m_edit, &QLineEdit::textEdited);
    const QSignalSpy selected(m_edit, &QLineEdit::selectionChanged);
    const QSignalSpy moved(m_edit, &QLineEdit::cursorPositionChanged);
    for (const bool readOnly : {false, true}) {
        m_edit->setReadOnly(readOnly);
        const bool modified = m_edit->isModified();
        MarkShade::replaceSheet(*m_edit, readOnly ? redSheet : QStringLiteral("color:green"));
        QCOMPARE(m_edit->isReadOnly(), readOnly);
        QCOMPARE(m_edit->isModified(), modified);
        QCOMPARE(m_edit->text(), QStringLiteral("first second"));
        QCOMPARE(m_edit->selectedText(), QStringLiteral("ir"));
        QCOMPARE(m_edit->cursorPosition(), 3);
        QVERIFY(m_edit->isUndoAvailable() || readOnly);
    }
    QCOMPARE(changed.size() + edited.size() + selected.size() + moved.size(), 0);
}

void tst_MarkShade::oneForAnEdit()
{
    MarkShade::replaceSheet(*m_edit, redSheet);
    MarkShade::replaceSheet(*m_edit, QStringLiteral("color:green"));
    QCOMPARE(m_edit->findChildren<MarkShade*>().size(), 1);
}

void tst_MarkShade::othersFilterOnce()
{
    class Marker : public QObject {
    public:
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() == QEvent::FocusOut) {
                ++times;
                MarkShade::replaceSheet(*qobject_cast<QLineEdit*>(watched), redSheet);
            }
            return false;
        }
        int times = 0;
    };
    Marker marker;
    m_edit->installEventFilter(&marker);
    MarkShade::prepare(*m_edit);
    QFocusEvent leave(QEvent::FocusOut);
    QCoreApplication::sendEvent(m_edit, &leave);
    QCOMPARE(marker.times, 1);
    QCOMPARE(m_edit->styleSheet(), redSheet);
    QCOMPARE(m_edit->findChildren<MarkShade*>().size(), 1);
}

TRADECONFIG_TEST_MAIN(tst_MarkShade)
#include "tst_MarkShade.moc"
