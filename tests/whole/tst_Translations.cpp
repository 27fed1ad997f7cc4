#include "gallery/Gallery.h"
#include "support/Files.h"
#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/NavWidget.h"
#include "tradeConfig/SwitchEx.h"
#include "tradeConfig/TableLineEdit.h"
#include "tradeConfig/TipLabel.h"
#include "tradeConfig/skin/CSkin.h"
#include "tradeConfig/skin/SkinKeys.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSet>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTableWidget>
#include <QTranslator>
#include <QXmlStreamReader>

namespace {

struct Message {
    QString context;
    QString source;
    QStringList forms; ///< one, or one for each plural form
    bool unfinished = false;
};

QVector<Message> messagesOf(const QString& path)
{
    QVector<Message> messages;
    QString context;
    bool plural = false;
    QXmlStreamReader xml(contentOf(path));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            plural = xml.attributes().hasAttribute(QLatin1String("numerus"));
        } else if (xml.name() == QLatin1String("source")) {
            messages.append({context, xml.readElementText(), {}, false});
        } else if (xml.name() == QLatin1String("translation")) {
            messages.last().unfinished = xml.attributes().hasAttribute(QLatin1String("type"));
            if (!plural)
                messages.last().forms << xml.readElementText();
        } else if (xml.name() == QLatin1String("numerusform")) {
            messages.last().forms << xml.readElementText();
        }
    }
    if (xml.hasError())
        return {};
    return messages;
}

int widestLine(const QFontMetrics& metrics, const QString& text)
{
    int widest = 0;
    for (const QString& line : text.split(QLatin1Char('\n')))
        widest = qMax(widest, metrics.horizontalAdvance(line));
    return widest;
}

// The room a control has for its text, in pixels; -1 for a control without text of its own.
int roomForText(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->contentsRect().width();
    if (const auto* box = qobject_cast<const QCheckBox*>(&widget)) {
        QStyleOptionButton option;
        option.initFrom(box);
        return box->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, box).width();
    }
    if (const auto* button = qobject_cast<const QPushButton*>(&widget)) {
        QStyleOptionButton option;
        option.initFrom(button);
        return button->style()
            ->subElementRect(QStyle::SE_PushButtonContents, &option, button)
            .width();
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        QStyleOptionComboBox option;
        option.initFrom(combo);
        return combo->style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo)
            .width();
    }
    return -1;
}

QStringList textsOf(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return {label->text()};
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return {button->text()};
    QStringList texts;
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        for (int item = 0; item < combo->count(); ++item)
            texts << combo->itemText(item);
    }
    return texts;
}

} // namespace

class tst_Translations : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void placeholdersSurvive_data();
    void placeholdersSurvive();
    void nothingIsCut_data();
    void nothingIsCut();

private:
    static void addLanguages();
    static QString sourceFile(const QString& language);
};

void tst_Translations::addLanguages()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("traditional Chinese") << QStringLiteral("zh_TW");
    QTest::newRow("English") << QStringLiteral("en_US");
}

QString tst_Translations::sourceFile(const QString& language)
{
    return QStringLiteral(SOURCE_DIRECTORY "/translations/tradeConfig_%1.ts").arg(language);
}

void tst_Translations::everyTextIsTranslated_data() { addLanguages(); }

void tst_Translations::everyTextIsTranslated()
{
    QFETCH(QString, language);
    const QTemporaryDir scratch;
    const QString extracted = scratch.filePath(QStringLiteral("extracted.ts"));
    QProcess lupdate;
    lupdate.setWorkingDirectory(QStringLiteral(SOURCE_DIRECTORY));
    lupdate.start(QStringLiteral(LUPDATE),
                  {QStringLiteral("-silent"), QStringLiteral("-locations"), QStringLiteral("none"),
                   QStringLiteral("-I"), QStringLiteral("."), QStringLiteral("tradeConfig"),
                   QStringLiteral("appearance"), QStringLiteral("client"),
                   QStringLiteral("gallery"), QStringLiteral("-ts"), extracted});
    QVERIFY(lupdate.waitForFinished());
    QCOMPARE(lupdate.exitCode(), 0);
    const QVector<Message> needed = messagesOf(extracted);
    QVERIFY(needed.size() > 150);

    const QVector<Message> shipped = messagesOf(sourceFile(language));
    QStringList missing;
    for (const Message& message : needed) {
        const bool translated
            = std::any_of(shipped.begin(), shipped.end(), [&message](const Message& candidate) {
                  return candidate.context == message.context && candidate.source == message.source
                      && !candidate.unfinished && !candidate.forms.isEmpty()
                      && !candidate.forms.contains(QString());
              });
        if (!translated)
            missing << message.context + QStringLiteral(": ") + message.source;
    }
    QCOMPARE(missing, QStringList());
    QCOMPARE(shipped.size(), needed.size());
}

void tst_Translations::placeholdersSurvive_data() { addLanguages(); }

void tst_Translations::placeholdersSurvive()
{
    QFETCH(QString, language);
    for (const Message& message : messagesOf(sourceFile(language))) {
        for (const QString& mark : {QStringLiteral("%1"), QStringLiteral("%2"),
                                    QStringLiteral("%3"), QStringLiteral("%n")}) {
            for (const QString& form : message.forms)
                QCOMPARE(form.count(mark), message.source.count(mark));
        }
    }
}

void tst_Translations::nothingIsCut_data()
{
    addLanguages();
    QTest::newRow("simplified Chinese") << QString();
}

void tst_Translations::nothingIsCut()
{
    QFETCH(QString, language);
    QTranslator translator;
    if (!language.isEmpty()) {
        QVERIFY(translator.load(QStringLiteral(":/translations/tradeConfig_%1.qm").arg(language)));
        QVERIFY(QCoreApplication::installTranslator(&translator));
    }

    const TestDialog dialog([](FakeTrade& trade) {
        trade.parm().uiPageMode = 2;
        trade.parm().starSplitStrategy = 3;
    });
    dialog->show();
    // Rows that the strategies hide would not be laid out.
    for (QWidget* row : std::initializer_list<QWidget*>{
             dialog->ui.label_trade_low, dialog->ui.label_trade_desc, dialog->ui.label_trade_kc_low,
             dialog->ui.label_trade_kc_desc})
        row->show();

    QStringList cut;
    const auto check
        = [&cut](const QString& where, const QString& text, double needed, double room) {
              if (needed > room)
                  cut << QStringLiteral("%1: \"%2\" needs %3 of %4")
                             .arg(where, text)
                             .arg(needed)
                             .arg(room);
          };

    // Each page is shown once so that its layout is settled.
    for (int group = 0; group < dialog->ui.stackedWidget->count(); ++group) {
        dialog->SetCurrentIndex(group);
        for (QStackedWidget* stack :
             {dialog->ui.stackedWidget_system, dialog->ui.stackedWidget_trade,
              dialog->ui.stackedWidget_shortcut}) {
            for (int page = 0; page < stack->count(); ++page) {
                stack->setCurrentIndex(page);
                QCoreApplication::processEvents();
            }
        }
    }
    for (const QWidget* widget : dialog->findChildren<QWidget*>()) {
        const int room = roomForText(*widget);
        if (room < 0)
            continue;
        for (const QString& text : textsOf(*widget))
            check(widget->objectName(), text, widestLine(widget->fontMetrics(), text), room);
    }

    auto* const skin = CorvelSkin::CSkin::Instance();
    for (const CNavWidget* list :
         {dialog->ui.widget_system, dialog->ui.widget_trade, dialog->ui.widget_shortcut}) {
        for (const QString& text : list->items)
            check(list->objectName(), text,
                  skin->textSize(dialog.get(), SkinKeys::Font::NavSwitchSel(), text).width(),
                  list->width() - 21);
    }
    for (const SwitchItem* item : dialog->switchBar->items)
        check(QStringLiteral("switch bar"), item->label,
              skin->textSize(dialog.get(), SkinKeys::Font::NavSwitchSel(), item->label).width(),
              item->rect.width());

    // What a check says: every function whose key may be taken, and a global hotkey.
    constexpr int statusColumn = 2;
    const auto status = [](const QTableWidget& table, int row, const QString& key) {
        auto* const editor = qobject_cast<CTableLineEdit*>(table.cellWidget(row, 1));
        Q_EMIT editor->signal_editFinished(row, key);
        return table.item(row, statusColumn)->text();
    };
    QSet<QString> verdicts;
    for (const QTableWidget* table :
         {dialog->ui.tableWidget_shortcut, dialog->ui.tableWidget_credit}) {
        const auto checkStatus = [&](int row, const QString& key) {
            const QString text = status(*table, row, key);
            verdicts += text;
            check(table->objectName(), text, widestLine(table->fontMetrics(), text),
                  table->columnWidth(statusColumn) - 8);
        };
        for (int row = 0; row < table->rowCount(); ++row) {
            const int other = row == 0 ? 1 : 0;
            const auto keyOf = [table](int of) {
                return qobject_cast<CTableLineEdit*>(table->cellWidget(of, 1))->text();
            };
            const QString own = keyOf(other);
            checkStatus(other, keyOf(row));
            checkStatus(other, own);
        }
        checkStatus(0, QStringLiteral("F12"));
    }
    // A function of either table, the global hotkey and the verdict that all is well.
    QVERIFY2(verdicts.size() >= dialog->ui.tableWidget_shortcut->rowCount() + 2,
             qPrintable(QStringList(verdicts.values()).join(QLatin1Char('\n'))));

    struct Entry {
        QLineEdit* field;
        const char* number;
    };
    const Entry entries[] = {
        {dialog->ui.lineEdit_trade_baseCount, "50"}, // less than any order may be
        {dialog->ui.lineEdit_trade_low, "800"},
        {dialog->ui.lineEdit_trade_high, "700"}, // less than the one before
        {dialog->ui.lineEdit_trade_low, "900"}, // more than the one before
    };
    QSet<QString> tips;
    for (const Entry& entry : entries) {
        entry.field->setText(QLatin1String(entry.number));
        QFocusEvent leave(QEvent::FocusOut);
        QCoreApplication::sendEvent(entry.field, &leave);
        if (dialog->tipLabel->isHidden())
            continue;
        const QString text = dialog->tipLabel->text();
        tips += text;
        check(QStringLiteral("tip"), text, widestLine(dialog->tipLabel->fontMetrics(), text),
              dialog->tipLabel->contentsRect().width());
    }
    QCOMPARE(tips.size(), 3);

    for (const QTableWidget* table :
         {dialog->ui.tableWidget_shortcut, dialog->ui.tableWidget_credit,
          dialog->ui.tableWidget_whole}) {
        QFont headerFont = table->horizontalHeader()->font();
        headerFont.setPixelSize(18);
        for (int column = 0; column < table->columnCount(); ++column) {
            const int room = table->columnWidth(column) - 8;
            const QString header = table->horizontalHeaderItem(column)->text();
            check(table->objectName(), header, widestLine(QFontMetrics(headerFont), header), room);
            for (int row = 0; row < table->rowCount(); ++row) {
                if (const QTableWidgetItem* cell = table->item(row, column))
                    check(table->objectName(), cell->text(),
                          widestLine(table->fontMetrics(), cell->text()), room);
            }
        }
    }
    const Gallery gallery;
    int galleryTips = 0;
    for (const Gallery::Page& page : gallery.pages()) {
        for (const CTipLabel* const tip : page.content->findChildren<CTipLabel*>()) {
            tip->ensurePolished();
            ++galleryTips;
            check(page.name, tip->text(), widestLine(tip->fontMetrics(), tip->text()),
                  tip->contentsRect().width());
        }
    }
    QCOMPARE(galleryTips, 4);

    QCoreApplication::removeTranslator(&translator);
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join(QLatin1Char('\n'))));
}

TRADECONFIG_TEST_MAIN(tst_Translations)
#include "tst_Translations.moc"
