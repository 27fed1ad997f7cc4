#pragma once

#include <QString>

#include <random>

class FuzzInput;
class QWidget;
class Scene;
class Surroundings;

/**
 * One run of random events, which its seed repeats.
 *
 * Boxes, menus and drags that wait for the user get events of their own, until one of these ends
 * them. What the clock decides alone, a fade or a countdown, falls where it falls.
 */
class EventRun {
public:
    EventRun(Scene& scene, Surroundings& surroundings, quint32 seed);

    /// Sends events until there were @p count of them.
    void go(int count);

    int sent() const { return m_sent; }

    /// The last events, for the report of a finding.
    static void printLast();

private:
    class Waiter;
    struct Kind;

    static const Kind kinds[];

    void event();
    void wait();
    void endWaiting(FuzzInput& input);
    QWidget* target(FuzzInput& input) const;
    QByteArray bytes();

    void assist(QWidget& target, FuzzInput& input);
    void operateKit(QWidget& target, FuzzInput& input);
    void askBox(QWidget& target, FuzzInput& input);
    void turnPage(QWidget& target, FuzzInput& input);
    void changeWindow(QWidget& target, FuzzInput& input);
    void useControl(QWidget& target, FuzzInput& input);
    void changeWidget(QWidget& target, FuzzInput& input);
    void paint(QWidget& target, FuzzInput& input);
    void process(QWidget& target, FuzzInput& input);
    void surround(QWidget& target, FuzzInput& input);
    void replace(QWidget& target, FuzzInput& input);
    void reload(QWidget& target, FuzzInput& input);

    Scene& m_scene;
    Surroundings& m_surroundings;
    std::mt19937 m_random;
    int m_sent = 0;
    int m_depth = 0; // events within which others are sent
};
