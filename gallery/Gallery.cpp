#include "gallery/Gallery.h"

#include "gallery/PageBuilder.h"
#include "gallery/Pages.h"
#include "tradeConfig/NavWidget.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>

namespace {

struct PageRow {
    const char* name;
    const char* title;
    QWidget* (*make)();
};

constexpr PageRow pageRows[] = {
    {"switch-horizontal", QT_TRANSLATE_NOOP("Gallery", "横向切换栏"), GalleryPages::horizontalBars},
    {"switch-vertical", QT_TRANSLATE_NOOP("Gallery", "纵向切换栏"), GalleryPages::verticalBars},
    {"navigation", QT_TRANSLATE_NOOP("Gallery", "导航列表"), GalleryPages::navigationLists},
    {"caption", QT_TRANSLATE_NOOP("Gallery", "标题栏"), GalleryPages::captionBars},
    {"image-button", QT_TRANSLATE_NOOP("Gallery", "图片按钮"), GalleryPages::imageButtons},
    {"message-box", QT_TRANSLATE_NOOP("Gallery", "消息框"), GalleryPages::messageBoxes},
    {"hints", QT_TRANSLATE_NOOP("Gallery", "提示与按键"), GalleryPages::hints},
    {"icons", QT_TRANSLATE_NOOP("Gallery", "图标"), GalleryPages::icons},
};

} // namespace

Gallery::Gallery(QWidget* parent)
    : QMainWindow(parent)
    , m_stack(new QStackedWidget)
    , m_skinMenu(menuBar()->addMenu(tr("视图(&V)"))->addMenu(tr("皮肤")))
{
    constexpr int listWidth = 150;
    setWindowTitle(tr("控件展示"));
    QFont plain = font();
    plain.setPixelSize(GalleryPages::textSize);
    setFont(plain);
    QStringList titles;
    for (const PageRow& row : pageRows) {
        Page page{QLatin1String(row.name), tr(row.title), row.make()};
        auto* const area = new QScrollArea;
        area->setFrameShape(QFrame::NoFrame);
        area->setWidgetResizable(true);
        area->setWidget(page.content);
        m_stack->addWidget(area);
        titles += page.title;
        m_pages += page;
    }
    auto* const list = new CNavWidget;
    list->SetBtnList(titles);
    list->setFixedWidth(listWidth);
    connect(list, &CNavWidget::signal_onclicked, m_stack, &QStackedWidget::setCurrentIndex);

    auto* const central = new QWidget;
    auto* const layout = new QHBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(list);
    layout->addWidget(m_stack, 1);
    setCentralWidget(central);
    const QSize wanted(1240, 800);
    resize(wanted.boundedTo(screen()->availableSize() - QSize(0, 40)));
}

Pictures Gallery::writeScreenshots(const QString& directory)
{
    Pictures pictures(directory);
    show();
    for (int index = 0; index < m_pages.size(); ++index) {
        const Page& page = m_pages.at(index);
        m_stack->setCurrentIndex(index);
        QCoreApplication::processEvents();
        // In its own size rather than the window's.
        auto* const area = qobject_cast<QScrollArea*>(m_stack->currentWidget());
        area->setWidgetResizable(false);
        page.content->adjustSize();
        const QPixmap picture = page.content->grab();
        area->setWidgetResizable(true);
        if (!pictures.add(QStringLiteral("gallery-%1-%2").arg(index + 1).arg(page.name), picture))
            break;
    }
    return pictures;
}