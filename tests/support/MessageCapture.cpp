#include "MessageCapture.h"

namespace {

QStringList& captured()
{
    static QStringList lines;
    return lines;
}

void capture(QtMsgType, const QMessageLogContext&, const QString& text) { captured() << text; }

} // namespace

MessageCapture::MessageCapture()
    : m_previous(qInstallMessageHandler(capture))
{
    captured().clear();
}

MessageCapture::~MessageCapture()
{
    qInstallMessageHandler(m_previous);
    captured().clear();
}

QStringList MessageCapture::lines() const { return captured(); }

int MessageCapture::count(const QString& text) const { return captured().filter(text).size(); }
