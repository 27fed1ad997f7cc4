#include "client/InterfaceScale.h"

#include <QGuiApplication>

namespace {

constexpr const char* factorVariable = "QT_SCALE_FACTOR";

} // namespace

InterfaceScale::InterfaceScale(int percent)
    : m_before(qgetenv(factorVariable))
    , m_wasSet(qEnvironmentVariableIsSet(factorVariable))
{
    bool ok = false;
    const double before = m_before.toDouble(&ok);
    const double factor = percent / 100.0 * (ok && before > 0 ? before : 1.0);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // 105 % must not become 100 %.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    qputenv(factorVariable, QByteArray::number(factor));
}

InterfaceScale::~InterfaceScale()
{
    if (m_wasSet)
        qputenv(factorVariable, m_before);
    else
        qunsetenv(factorVariable);
}
