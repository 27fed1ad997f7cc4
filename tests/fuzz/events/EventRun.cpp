#include "fuzz/events/EventRun.h"

#include "fuzz/FuzzInput.h"
#include "fuzz/events/Assistive.h"
#include "fuzz/events/Inputs.h"
#include "fuzz/events/Scene.h"
#include "fuzz/events/Surroundings.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QPixmap>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace {

struct Sent {
    int number = 0;
    int depth = 0;
    const char* kind = nullptr;
    const char* className = nullptr;
    QByteArray name;
};

constexpr int remembered = 40;
Sent lastSent[remembered];

constexpr int deepest = 3;

} // namespace

/// Lives as long as something may wait for the user. A timer does not fire within its own slot, so
/// whatever may wait has one of its own.
class EventRun::Waiter {
public:
    explicit Waiter(EventRun& run)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [&run] { run.wait(); });
        m_timer.start(0);
    }

private:
    QTimer m_timer;
};

/// What is sent, how often, and whether it may be sent while something waits for the user.
struct EventRun::Kind {
    const char* name;
    int weight;
    bool whileWaiting;
    void (EventRun::*own)(QWidget&, FuzzInput&);
    void (*input)(QWidget&, FuzzInput&);
};

const EventRun::Kind EventRun::kinds[] = {
    {"mouse", 220, true, nullptr, Inputs::mouse},
    {"click", 340, true, nullptr, Inputs::click},
    {"key", 340, true, nullptr, Inputs::key},
    {"text", 120, true, nullptr, Inputs::text},
    {"hover", 140, true, nullptr, Inputs::hover},
    {"wheel", 120, true, nullptr, Inputs::wheel},
    {"input method", 100, true, nullptr, Inputs::inputMethod},
    {"context menu", 140, true, nullptr, Inputs::contextMenu},
    {"drag and drop", 80, true, nullptr, Inputs::drag},
    {"focus", 80, true, nullptr, Inputs::focus},
    {"clipboard", 12, true, nullptr, Inputs::clipboard},
    {"assistive", 160, true, &EventRun::assist, nullptr},
    {"kit call", 50, true, &EventRun::operateKit, nullptr},
    {"control", 50, true, &EventRun::useControl, nullptr},
    {"process", 40, true, &EventRun::process, nullptr},
    {"page", 60, true, &EventRun::turnPage, nullptr},
    {"window", 16, true, &EventRun::changeWindow, nullptr},
    {"widget", 16, true, &EventRun::changeWidget, nullptr},
    {"paint", 8, true, &EventRun::paint, nullptr},
    {"message box", 6, false, &EventRun::askBox, nullptr},
    {"surroundings", 2, true, &EventRun::surround, nullptr},
    {"replace", 2, false, &EventRun::replace, nullptr},
    {"unload", 1, false, &EventRun::reload, nullptr},
};

EventRun::EventRun(Scene& scene, Surroundings& surroundings, quint32 seed)
    : m_scene(scene)
    , m_surroundings(surroundings)
    , m_random(seed)
{
}

void EventRun::printLast()
{
    const int newest
        = int(std::max_element(std::begin(lastSent), std::end(lastSent),
                               [](const Sent& a, const Sent& b) { return a.number < b.number; })
              - std::begin(lastSent));
    for (int i = 1; i <= remembered; ++i) {
        const Sent& sent = lastSent[(newest + i) % remembered];
        if (sent.number > 0)
            std::fprintf(stderr, "%7d %*s%s: %s \"%s\"\n", sent.number, 2 * sent.depth, "",
                         sent.kind, sent.className, sent.name.constData());
    }
}

void EventRun::go(int count)
{
    while (m_sent < count) {
        // Within a loop of its own, so that what asks the application to quit ends no more than
        // that, and is forgotten for the next.
        QTimer::singleShot(0, qApp, [this, count] {
            constexpr int atOnce = 50;
            for (int i = 0; i < atOnce && m_sent < count; ++i)
                event();
            m_depth = 0;
            QCoreApplication::exit(0);
        });
        QCoreApplication::exec();
        m_scene.check();
    }
}

QByteArray EventRun::bytes()
{
    constexpr int count = 64;
    QByteArray result(count * 4, '\0');
    for (int i = 0; i < count; ++i) {
        const auto word = quint32(m_random());
        std::memcpy(result.data() + 4 * i, &word, sizeof word);
    }
    return result;
}

QWidget* EventRun::target(FuzzInput& input) const
{
    QWidget* top = QApplication::activePopupWidget();
    if (!top)
        top = QApplication::activeModalWidget();
    if (!top && input.below(4))
        top = QApplication::activeWindow();
    if (!top || !top->isVisible()) {
        const QWidgetList shown = m_scene.shownWindows();
        if (shown.isEmpty())
            return nullptr;
        top = shown.at(input.below(shown.size()));
    }
    QWidget* const focused = QApplication::focusWidget();
    if (focused && focused->window() == top && !input.below(3))
        return focused;
    const auto widgets = top->findChildren<QWidget*>();
    constexpr int tries = 30;
    for (int i = 0; i < tries && !widgets.isEmpty(); ++i) {
        QWidget* const widget = widgets.at(input.below(widgets.size()));
        if (widget->isVisible())
            return widget;
    }
    return top;
}

void EventRun::event()
{
    static const int total = [] {
        int sum = 0;
        for (const Kind& kind : kinds)
            sum += kind.weight;
        return sum;
    }();
    const QByteArray random = bytes();
    FuzzInput input(reinterpret_cast<const std::uint8_t*>(random.constData()),
                    std::size_t(random.size()));
    // A menu that is open takes everything until it is closed.
    if (QApplication::activePopupWidget() && !input.below(6)) {
        endWaiting(input);
        return;
    }
    int choice = input.below(total);
    const Kind* kind = kinds;
    for (; choice >= kind->weight; ++kind)
        choice -= kind->weight;
    QWidget* const widget = target(input);
    if (!widget) {
        m_scene.open(input);
        return;
    }
    const bool waited
        = m_depth > 0 || QApplication::activePopupWidget() || QApplication::activeModalWidget();
    if (waited && !kind->whileWaiting)
        return;
    ++m_sent;
    lastSent[m_sent % remembered] = {m_sent, m_depth, kind->name, widget->metaObject()->className(),
                                     widget->objectName().toUtf8()};
    ++m_depth;
    const Waiter waiter(*this);
    if (kind->own)
        (this->*kind->own)(*widget, input);
    else
        kind->input(*widget, input);
    --m_depth;
}

void EventRun::wait()
{
    const QByteArray random = bytes();
    FuzzInput input(reinterpret_cast<const std::uint8_t*>(random.constData()),
                    std::size_t(random.size()));
    const Waiter waiter(*this);
    // Behind a box that was answered nothing happens before its caller goes on.
    const bool waits = QApplication::activePopupWidget() || QApplication::activeModalWidget();
    if (waits && m_depth < deepest && input.below(4))
        event();
    else
        endWaiting(input);
}

void EventRun::endWaiting(FuzzInput& input)
{
    if (QWidget* const popup = QApplication::activePopupWidget()) {
        popup->close();
        return;
    }
    QWidget* const box = QApplication::activeModalWidget();
    if (!box) {
        if (QWidget* const any = m_depth > 0 ? target(input) : nullptr)
            Inputs::endDrag(*any, input);
        return;
    }
    QList<QAbstractButton*> buttons;
    for (auto* const button : box->findChildren<QAbstractButton*>()) {
        if (button->isVisible())
            buttons << button;
    }
    const int choice = input.below(buttons.size() + 1);
    if (choice < buttons.size())
        buttons.at(choice)->click();
    else
        box->close();
}

void EventRun::assist(QWidget& target, FuzzInput& input) { Assistive::use(target, input); }

void EventRun::operateKit(QWidget&, FuzzInput& input)
{
    if (m_scene.kit())
        m_scene.kit()->operate(input);
}

void EventRun::askBox(QWidget&, FuzzInput& input)
{
    if (m_scene.kit())
        m_scene.kit()->ask(input);
}

void EventRun::turnPage(QWidget&, FuzzInput& input) { m_scene.turnPage(input); }

void EventRun::changeWindow(QWidget& target, FuzzInput& input)
{
    QWidget* const window = target.window();
    switch (input.below(9)) {
    case 0:
        window->resize(input.below(2000), input.below(1500));
        break;
    case 1:
        window->move(input.below(1500) - 300, input.below(1000) - 300);
        break;
    case 2:
        window->hide();
        break;
    case 3:
        window->close();
        break;
    case 4:
        window->setWindowState(Qt::WindowStates(QFlag(input.byte() & 7)));
        break;
    case 5:
        m_scene.disturbSettings(input);
        break;
    default:
        if (!QApplication::activeModalWidget())
            m_scene.open(input);
    }
}

void EventRun::useControl(QWidget& target, FuzzInput& input)
{
    if (auto* const combo = qobject_cast<QComboBox*>(&target)) {
        if (input.below(3))
            combo->setCurrentIndex(input.below(combo->count() + 1) - 1);
        else
            combo->showPopup();
    } else if (auto* const button = qobject_cast<QAbstractButton*>(&target)) {
        button->click();
    } else if (auto* const spin = qobject_cast<QAbstractSpinBox*>(&target)) {
        spin->stepBy(input.below(21) - 10);
    } else {
        // Of the dialog's hidden controls this one does the most.
        auto* const language
            = target.window()->findChild<QComboBox*>(QStringLiteral("comboBox_system_language"));
        if (language && language->window()->isVisible() && !input.below(12))
            language->setCurrentIndex(input.below(language->count()));
    }
}

void EventRun::changeWidget(QWidget& target, FuzzInput& input)
{
    switch (input.below(6)) {
    case 0: {
        QFont font = target.font();
        font.setPixelSize(8 + input.below(20));
        target.setFont(font);
        break;
    }
    case 1:
        target.setPalette(QPalette(input.flag() ? Qt::white : Qt::black));
        break;
    case 2:
        target.setLayoutDirection(input.flag() ? Qt::LeftToRight : Qt::RightToLeft);
        break;
    case 3:
        target.setToolTip(QStringLiteral("tip"));
        break;
    case 4:
        target.unsetLocale();
        target.setCursor(Qt::CursorShape(input.below(10)));
        break;
    default: {
        QEvent event(input.flag() ? QEvent::StyleChange : QEvent::LanguageChange);
        QApplication::sendEvent(&target, &event);
    }
    }
}

void EventRun::paint(QWidget& target, FuzzInput& input)
{
    if (input.flag())
        target.grab();
    else
        target.repaint();
}

void EventRun::process(QWidget&, FuzzInput&) { QCoreApplication::processEvents(); }

void EventRun::surround(QWidget&, FuzzInput& input) { m_surroundings.change(input); }

void EventRun::replace(QWidget&, FuzzInput& input) { m_scene.replace(input); }

void EventRun::reload(QWidget&, FuzzInput& input) { m_scene.reload(input); }
