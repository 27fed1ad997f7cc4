#pragma once

#include "tradeConfig/ITrade.h"

#include <QByteArray>

#include <memory>

/**
 * A trading core for tests: owns a record and counts how often it is asked and told to save.
 *
 * The record's strings lie at misaligned addresses by contract, which the alignment sanitizer
 * would report; making, destroying and touching them happens in FakeTrade.cpp alone, which is
 * built without that one check.
 */
class FakeTrade : public KivoTrade::ITrade {
public:
    using Texts = std::string (TradeParm::*)[13];

    /// All integers zero, all texts empty, the reserved stretches filled with a pattern.
    FakeTrade();
    virtual ~FakeTrade();
    FakeTrade(const FakeTrade&) = delete;
    FakeTrade& operator=(const FakeTrade&) = delete;

    // clang-format off
    void Placeholder0() override { ++foreignCalls; }
    void Placeholder1() override { ++foreignCalls; }
    void Placeholder2() override { ++foreignCalls; }
    void Placeholder3() override { ++foreignCalls; }
    void Placeholder4() override { ++foreignCalls; }
    void Placeholder5() override { ++foreignCalls; }
    void Placeholder6() override { ++foreignCalls; }
    void Placeholder7() override { ++foreignCalls; }
    void Placeholder8() override { ++foreignCalls; }
    void Placeholder9() override { ++foreignCalls; }
    void Placeholder10() override { ++foreignCalls; }
    void Placeholder11() override { ++foreignCalls; }
    void Placeholder12() override { ++foreignCalls; }
    void Placeholder13() override { ++foreignCalls; }
    // clang-format on
    TradeParm* GetTradeParm() override;
    void SaveTradeParm() override { ++saves; }

    TradeParm& parm() { return *m_parm; }

    QByteArray defaultPage() const;
    void setDefaultPage(const QByteArray& code);
    QByteArray text(Texts texts, int entry) const;
    void setText(Texts texts, int entry, const QByteArray& value);

    /// Thirteen distinct keys in each array, as keyText() has them: "Ctrl+A" .. and "Alt+A" .. by
    /// entry.
    void setDistinctShortcuts();

    /// The bytes of both reserved stretches, one after the other.
    QByteArray reservedBytes() const;

    int gets = 0;
    int saves = 0;
    int foreignCalls = 0;

private:
    TradeParm* m_parm;
};
