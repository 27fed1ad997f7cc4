#include "appearance/SkinSwitcher.h"
#include "gallery/Gallery.h"
#include "gallery/GalleryParts.h"
#include "libskin/SkinLibrary.h"
#include "support/MessageCapture.h"
#include "support/TestMain.h"
#include "tradeConfig/CaptionBar.h"
#include "tradeConfig/TableLineEdit.h"

#include <QGraphicsOpacityEffect>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QTimerEvent>

#include <memory>

using CorvelSkin::SkinLibrary;

namespace {

template <typename Widget> QList<const Widget*> shownIn(const QWidget* page)
{
    QList<const Widget*> found;
    for (const WindowPreview* preview : page->findChildren<WindowPreview*>()) {
        const auto* widget = qobject_cast<const Widget*>(preview->shown());
        if (!widget)
            widget = preview->shown()->findChild<Widget*>();
        if (widget)
            found += widget;
    }
    return found;
}

} // namespace

class tst_Gallery : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pages();
    void switchBars_data();
    void switchBars();
    void lineBesideTheSelectedItem();
    void switchBarsStandStill();
    void navigationLists();
    void captionBarForEverySetOfFlags_data();
    void captionBarForEverySetOfFlags();
    void captionBarKinds();
    void imageButtons_data();
    void imageButtons();
    void messageBoxes_data();
    void messageBoxes();
    void messageBoxCountdownStandsStill();
    void messageBoxIsNeverCut();
    void clickOnAMessageBoxOpensIt();
    void hints();
    void screenshots();
    void screenshotsIntoAFile();
    void everyPreviewIsPainted();
    void skinSwitchesLive();
    void skinLeavesTheFonts();

private:
    const QWidget* page(const char* name) const;

    const SkinSwitcher m_skins;
    std::unique_ptr<Gallery> m_gallery;
};

void tst_Gallery::initTestCase() { m_gallery = std::make_unique<Gallery>(); }

const QWidget* tst_Gallery::page(const char* name) const
{
    for (const Gallery::Page& page : m_gallery->pages()) {
        if (page.name == QLatin1String(name))
            return page.content;
    }
    qFatal("no page %s", name);
}

void tst_Gallery::pages()
{
    QStringList names;
    for (const Gallery::Page& page : m_gallery->pages()) {
        names += page.name;
        QVERIFY(!page.title.isEmpty());
    }
    QCOMPARE(names.join(QLatin1Char(' ')),
             QStringLiteral("switch-horizontal switch-vertical navigation caption image-button "
                            "message-box hints icons"));
    QVERIFY(m_gallery->skinMenu()->isEmpty());
}

void tst_Gallery::switchBars_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("mode");
    for (int mode = 1; mode <= 7; ++mode) {
        QTest::addRow("horizontal %d", mode) << Qt::Horizontal << mode;
        QTest::addRow("vertical %d", mode) << Qt::Vertical << mode;
    }
}

void tst_Gallery::switchBars()
{
    QFETCH(const Qt::Orientation, orientation);
    QFETCH(const int, mode);
    const QWidget* const content
        = page(orientation == Qt::Horizontal ? "switch-horizontal" : "switch-vertical");

    QSet<bool> backgrounds;
    QSet<QString> positions;
    bool normal = false;
    bool hover = false;
    bool selected = false;
    bool menu = false;
    bool separator = false;
    bool image = false;
    bool end = false;
    for (const HeldSwitchBar* const bar : content->findChildren<HeldSwitchBar*>()) {
        QCOMPARE(bar->orientation, orientation);
        if (int(bar->mode) != mode)
            continue;
        end = end || !bar->endItems.isEmpty();
        if (bar->moreShown) {
            const bool atStart = bar->firstIndex == 0;
            const bool atEnd = bar->firstIndex + bar->visibleCount == bar->items.size();
            QVERIFY2(!(atStart && atEnd), "nothing to scroll");
            positions += atStart ? QStringLiteral("start")
                : atEnd          ? QStringLiteral("end")
                                 : QStringLiteral("middle");
            continue;
        }
        // Painted: every item, not only those that an earlier layout had room for.
        QCOMPARE(bar->visibleCount, bar->items.size());
        backgrounds += bar->backgroundEnable;
        for (const SwitchItem* const item : bar->items) {
            separator = separator || item->isSeparator;
            image = image || item->isImage;
            menu = menu || item->menu;
            hover = hover || item == bar->hoverItem;
            selected = selected || item == bar->curSel;
            normal = normal
                || (item != bar->hoverItem && item != bar->curSel && !item->menu
                    && !item->isSeparator);
        }
        QVERIFY(bar->hoverItem != bar->curSel || !bar->curSel);
    }
    QVERIFY(normal && hover && selected && separator && image && end);
    QCOMPARE(menu, mode != 6); // only images are painted there
    QCOMPARE(backgrounds.size(), 2);
    QCOMPARE(positions.size(), mode == 1 ? 0 : 3);
}

void tst_Gallery::lineBesideTheSelectedItem()
{
    const QColor line = SkinLibrary::instance()->colour(QStringLiteral("SwitchSelLine"));
    int lines = 0;
    for (HeldSwitchBar* const bar : page("switch-vertical")->findChildren<HeldSwitchBar*>()) {
        const bool writesColumns
            = bar->mode == CSwitchEx::ModeFlatButton || bar->mode == CSwitchEx::ModeNavButton;
        if (!writesColumns || bar->moreShown)
            continue;
        ++lines;
        const QImage picture = bar->grab().toImage();
        const int middle = qRound(bar->curSel->rect.center().y());
        QCOMPARE(picture.pixelColor(bar->width() - 1, middle), line);
        QVERIFY(picture.pixelColor(bar->width() - 2, middle) != line);
    }
    QCOMPARE(lines, 4);
}

void tst_Gallery::switchBarsStandStill()
{
    for (const char* const name : {"switch-horizontal", "switch-vertical"}) {
        int held = 0;
        for (HeldSwitchBar* const bar : page(name)->findChildren<HeldSwitchBar*>())
            held += bar->testAttribute(Qt::WA_TransparentForMouseEvents) ? 1 : 0;
        QCOMPARE(held, 7 * 2 + 6 * 3);
    }
}

void tst_Gallery::navigationLists()
{
    QSet<QPair<int, int>> states;
    bool empty = false;
    const auto lists = page("navigation")->findChildren<HeldNavList*>();
    for (const HeldNavList* const list : lists) {
        empty = empty || list->count == 0;
        if (list->count > 0)
            states += qMakePair(list->selected, list->hover);
    }
    QVERIFY(empty);
    QVERIFY(states.contains(qMakePair(0, 0)));
    QVERIFY(states.contains(qMakePair(1, 1)));
    QVERIFY(states.contains(qMakePair(1, 2)));
    QVERIFY(states.contains(qMakePair(2, 0)));
    QCOMPARE(page("navigation")->findChildren<CNavWidget*>().size(), lists.size() + 1);
}

void tst_Gallery::captionBarForEverySetOfFlags_data()
{
    QTest::addColumn<int>("parts");
    for (int parts = 0; parts < 32; ++parts)
        QTest::addRow("%d", parts) << parts;
}

void tst_Gallery::captionBarForEverySetOfFlags()
{
    QFETCH(const int, parts);
    int found = 0;
    for (const CCaptionBar* const bar : shownIn<CCaptionBar>(page("caption"))) {
        const int present = (bar->logoButton ? 1 : 0) | (bar->titleLabel ? 2 : 0)
            | (bar->minimizeButton ? 4 : 0) | (bar->maximizeButton ? 8 : 0)
            | (bar->closeButton ? 16 : 0);
        found += present == parts ? 1 : 0;
    }
    // Those with every part come back in the other section.
    QCOMPARE(found, parts == 31 ? 7 : 1);
}

void tst_Gallery::captionBarKinds()
{
    int modal = 0;
    int restore = 0;
    int frameless = 0;
    int untitled = 0;
    int extended = 0;
    for (const CCaptionBar* const bar : shownIn<CCaptionBar>(page("caption"))) {
        modal += bar->isDialog && bar->window()->isModal() ? 1 : 0;
        restore
            += bar->maximizeButton && bar->maximizeButton->normalImage == QLatin1String("win_renew")
            ? 1
            : 0;
        frameless += bar->frameEnabled ? 0 : 1;
        untitled += bar->titleLabel && bar->titleLabel->isHidden() ? 1 : 0;
        extended += bar->buttonLayout->count() > 3 ? 1 : 0;
    }
    QCOMPARE(modal, 1);
    QCOMPARE(restore, 1);
    QCOMPARE(frameless, 1);
    QCOMPARE(untitled, 1);
    QCOMPARE(extended, 1);
}

void tst_Gallery::imageButtons_data()
{
    QTest::addColumn<int>("mode");
    for (int mode = 1; mode <= 5; ++mode)
        QTest::addRow("%d", mode) << mode;
}

void tst_Gallery::imageButtons()
{
    QFETCH(const int, mode);
    bool normal = false;
    bool hover = false;
    bool pressed = false;
    bool disabled = false;
    for (const HeldImageButton* const button :
         page("image-button")->findChildren<HeldImageButton*>()) {
        if (button->imageMode != mode)
            continue;
        disabled = disabled || !button->isEnabled();
        pressed = pressed || (button->isEnabled() && button->pressed);
        hover = hover || (button->isEnabled() && button->hovered && !button->pressed);
        normal = normal || (button->isEnabled() && !button->hovered && !button->pressed);
    }
    QVERIFY(normal && hover && pressed && disabled);
}

void tst_Gallery::messageBoxes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("buttons");
    QTest::addColumn<bool>("icon");
    const auto row = [](const char* text, const QStringList& buttons, bool icon = true) {
        QTest::newRow(text) << QString::fromUtf8(text) << buttons << icon;
    };
    row("参数已保存。", {QStringLiteral("确定")});
    row("行情连接已断开，正在重新连接。", {QStringLiteral("重试"), QStringLiteral("取消")});
    row("委托被拒绝：可用资金不足。",
        {QStringLiteral("终止"), QStringLiteral("重试"), QStringLiteral("忽略")});
    row("界面设置已更改，是否立即重新启动？", {QStringLiteral("是"), QStringLiteral("否")});
    row("没有图标的消息更窄、更矮。", {QStringLiteral("确定"), QStringLiteral("取消")}, false);
    row("窗口将自动关闭。", {QStringLiteral("确定(9)")});
    row("正在退出，请稍候。", {});
    row("保存对交易参数的修改？",
        {QStringLiteral("保存"), QStringLiteral("全部保存"), QStringLiteral("取消"),
         QStringLiteral("放弃"), QStringLiteral("帮助"), QStringLiteral("还原默认值")});
}

void tst_Gallery::messageBoxes()
{
    QFETCH(const QString, text);
    QFETCH(const QStringList, buttons);
    QFETCH(const bool, icon);
    int found = 0;
    for (const CMessageBox* const box : shownIn<CMessageBox>(page("message-box"))) {
        if (box->msg->text() != text)
            continue;
        ++found;
        QStringList shown;
        for (const QPushButton* const button : box->btns) {
            if (!button->isHidden())
                shown += button->text();
        }
        QCOMPARE(shown, buttons);
        QCOMPARE(!box->icon->isHidden(), icon);
    }
    QCOMPARE(found, 1);
}

void tst_Gallery::messageBoxCountdownStandsStill()
{
    int counting = 0;
    for (const CMessageBox* const box : shownIn<CMessageBox>(page("message-box"))) {
        if (box->countdown < 1)
            continue;
        ++counting;
        for (int second = 0; second < 12; ++second) {
            QTimerEvent tick(1);
            QCoreApplication::sendEvent(const_cast<CMessageBox*>(box), &tick);
        }
        QCOMPARE(box->btn1->text(), QStringLiteral("确定(9)"));
        QCOMPARE(box->result(), 0);
    }
    QCOMPARE(counting, 1);
}

void tst_Gallery::messageBoxIsNeverCut()
{
    const auto previews = page("message-box")->findChildren<WindowPreview*>();
    QCOMPARE(previews.size(), 11);
    for (const WindowPreview* const preview : previews) {
        QCOMPARE(preview->size(), preview->shown()->size());
        const QSize least = preview->shown()->layout()->totalMinimumSize();
        QVERIFY(preview->width() >= least.width());
        QVERIFY(preview->height() >= least.height());
    }
}

void tst_Gallery::clickOnAMessageBoxOpensIt()
{
    auto* const preview = page("message-box")->findChild<WindowPreview*>();
    QCOMPARE(m_gallery->findChildren<CMessageBox*>().size(), 0);
    QTest::mouseClick(preview, Qt::RightButton);
    QCOMPARE(m_gallery->findChildren<CMessageBox*>().size(), 0);
    QTest::mouseClick(preview, Qt::LeftButton);
    auto* const box = m_gallery->findChild<CMessageBox*>();
    QVERIFY(box);
    QVERIFY(box->isVisible());
    QCOMPARE(box->msg->text(), QStringLiteral("参数已保存。"));
    box->btn1->click();
    QTRY_COMPARE(m_gallery->findChildren<CMessageBox*>().size(), 0);

    // The pictures of caption bars do nothing.
    QTest::mouseClick(page("caption")->findChild<WindowPreview*>(), Qt::LeftButton);
    QCOMPARE(m_gallery->findChildren<CMessageBox*>().size(), 0);
}

void tst_Gallery::hints()
{
    QStringList sheets;
    bool halfFaded = false;
    for (const CTipLabel* const tip : page("hints")->findChildren<CTipLabel*>()) {
        sheets += tip->styleSheet();
        QCOMPARE(tip->size(), QSize(160, 20));
        const auto* const effect = qobject_cast<QGraphicsOpacityEffect*>(tip->graphicsEffect());
        halfFaded = halfFaded || (effect && qAbs(effect->opacity() - 0.5) < 0.01);
    }
    QVERIFY(sheets.contains(QStringLiteral("color:red;")));
    QVERIFY(sheets.contains(QStringLiteral("color:green;")));
    QVERIFY(halfFaded);
    QCOMPARE(page("hints")->findChildren<CTableLineEdit*>().size(), 4);
}

void tst_Gallery::screenshots()
{
    const QTemporaryDir directory;
    const MessageCapture log;
    QHash<QString, QVector<QImage>> pictures;
    const QStringList skins{QStringLiteral("dark"), QStringLiteral("light")};
    for (const QString& skin : skins) {
        QVERIFY(SkinLibrary::instance()->load(skin));
        Gallery gallery;
        const Pictures result = gallery.writeScreenshots(directory.filePath(skin));
        QCOMPARE(result.failure, QString());
        QCOMPARE(result.files.size(), 8);
        QCOMPARE(QFileInfo(result.files.first()).fileName(),
                 QStringLiteral("gallery-1-switch-horizontal.png"));
        for (const QString& file : result.files) {
            const QImage picture(file);
            QVERIFY2(picture.width() >= 400 && picture.height() >= 250, qPrintable(file));
            pictures[skin] += picture;
        }
    }
    for (int index = 0; index < 8; ++index) {
        QCOMPARE(pictures[skins[0]][index].size(), pictures[skins[1]][index].size());
        QVERIFY(pictures[skins[0]][index] != pictures[skins[1]][index]);
    }
    QCOMPARE(log.count(QStringLiteral("nknown")), 0);
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("light")));
}

void tst_Gallery::screenshotsIntoAFile()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    const Pictures result = m_gallery->writeScreenshots(file.fileName());
    QVERIFY(result.failure.contains(file.fileName()));
    QCOMPARE(result.files, QStringList());
}

void tst_Gallery::everyPreviewIsPainted()
{
    for (const char* const name : {"caption", "message-box"}) {
        for (WindowPreview* const preview : page(name)->findChildren<WindowPreview*>()) {
            const QImage picture = preview->grab().toImage();
            const QImage window = const_cast<QWidget*>(preview->shown())->grab().toImage();
            QCOMPARE(picture.convertToFormat(QImage::Format_RGB32),
                     window.convertToFormat(QImage::Format_RGB32));
        }
    }
}

void tst_Gallery::skinSwitchesLive()
{
    const auto grabAll = [](const Gallery& gallery) {
        QVector<QImage> pictures;
        for (const Gallery::Page& page : gallery.pages())
            pictures += page.content->grab().toImage();
        return pictures;
    };
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("light")));
    Gallery switched;
    const QVector<QImage> before = grabAll(switched);
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("dark")));
    const QVector<QImage> after = grabAll(switched);
    const Gallery fresh;
    const QVector<QImage> expected = grabAll(fresh);
    for (int index = 0; index < expected.size(); ++index) {
        QVERIFY(before[index] != after[index]);
        QVERIFY2(after[index] == expected[index], qPrintable(switched.pages().at(index).name));
    }
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("light")));
}

void tst_Gallery::skinLeavesTheFonts()
{
    QWidget window;
    QFont font(QStringLiteral("Arial"), 11);
    window.setFont(font);
    QLineEdit edit(&window);
    font = edit.font();
    font.setPointSize(13);
    edit.setFont(font);
    edit.setStyleSheet(QStringLiteral("color:red"));
    window.show();
    const QFont before = edit.font();
    QCOMPARE(before.family(), QStringLiteral("Arial"));
    for (const char* const name : {"dark", "light"}) {
        QVERIFY(SkinLibrary::instance()->load(QString::fromLatin1(name)));
        QCOMPARE(edit.font(), before);
        QCOMPARE(edit.styleSheet(), QStringLiteral("color:red"));
    }
}

TRADECONFIG_TEST_MAIN(tst_Gallery)
#include "tst_Gallery.moc"
