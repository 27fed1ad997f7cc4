#pragma once

#include "tradeConfig/ITrade.h"

#include <memory>

/// A trading core with a record that uses every control: all boxes on, both groups split.
class BenchTrade final : public KivoTrade::ITrade {
public:
    BenchTrade();
    virtual ~BenchTrade();
    BenchTrade(const BenchTrade&) = delete;
    BenchTrade& operator=(const BenchTrade&) = delete;

    // clang-format off
    void Placeholder0() override { }
    void Placeholder1() override { }
    void Placeholder2() override { }
    void Placeholder3() override { }
    void Placeholder4() override { }
    void Placeholder5() override { }
    void Placeholder6() override { }
    void Placeholder7() override { }
    void Placeholder8() override { }
    void Placeholder9() override { }
    void Placeholder10() override { }
    void Placeholder11() override { }
    void Placeholder12() override { }
    void Placeholder13() override { }
    // clang-format on
    TradeParm* GetTradeParm() override { return m_parm.get(); }
    void SaveTradeParm() override { ++saves; }

    int saves = 0;

private:
    std::unique_ptr<TradeParm> m_parm;
};
