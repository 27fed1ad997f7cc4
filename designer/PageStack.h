#pragma once

#include <QStackedWidget>

/// A stacked widget under the class name that the form gives it, by which Designer knows it.
class PageStack : public QStackedWidget {
    Q_OBJECT

public:
    using QStackedWidget::QStackedWidget;
};
