#include "support/FakeTrade.h"

#include "support/KeyText.h"

#include <cstring>

FakeTrade::FakeTrade()
    : m_parm(new TradeParm())
{
    std::memset(m_parm->reservedA, 0x5A, sizeof m_parm->reservedA);
    std::memset(m_parm->reservedB, 0xA5, sizeof m_parm->reservedB);
}

FakeTrade::~FakeTrade() { delete m_parm; }

TradeParm* FakeTrade::GetTradeParm()
{
    ++gets;
    return m_parm;
}

QByteArray FakeTrade::defaultPage() const { return QByteArray::fromStdString(m_parm->defaultPage); }

void FakeTrade::setDefaultPage(const QByteArray& code)
{
    m_parm->defaultPage.assign(code.constData(), std::size_t(code.size()));
}

QByteArray FakeTrade::text(Texts texts, int entry) const
{
    return QByteArray::fromStdString((m_parm->*texts)[entry]);
}

void FakeTrade::setText(Texts texts, int entry, const QByteArray& value)
{
    (m_parm->*texts)[entry].assign(value.constData(), std::size_t(value.size()));
}

void FakeTrade::setDistinctShortcuts()
{
    for (int entry = 0; entry < 13; ++entry) {
        const QLatin1Char letter(char('A' + entry));
        setText(&TradeParm::stockShortcuts, entry,
                keyText(QStringLiteral("Ctrl+") + letter).toUtf8());
        setText(&TradeParm::creditShortcuts, entry,
                keyText(QStringLiteral("Alt+") + letter).toUtf8());
    }
}

QByteArray FakeTrade::reservedBytes() const
{
    return QByteArray(m_parm->reservedA, sizeof m_parm->reservedA)
        + QByteArray(m_parm->reservedB, sizeof m_parm->reservedB);
}
