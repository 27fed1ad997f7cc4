#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>

/// Ends the run with a report when a statement that must hold does not.
#define MUST(condition)                                                                            \
    do {                                                                                           \
        if (!(condition))                                                                          \
            FuzzInput::fail(#condition, __FILE__, __LINE__);                                       \
    } while (false)

/// The fuzzer's bytes, taken from the front; zeros when they are used up.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t* data, std::size_t size)
        : m_next(data)
        , m_end(data + size)
    {
    }

    bool isEmpty() const { return m_next == m_end; }

    int byte() { return isEmpty() ? 0 : *m_next++; }

    /// 0 to @p count - 1; 0 for no choice at all.
    int below(int count)
    {
        const int value = byte() | byte() << 8;
        return count > 0 ? value % count : 0;
    }

    bool flag() { return (byte() & 1) != 0; }

    /// Any 32 bits, with the values around which the code decides made likely.
    int integer()
    {
        constexpr int special[] = {-2147483647 - 1,
                                   -1,
                                   0,
                                   1,
                                   2,
                                   3,
                                   4,
                                   5,
                                   99,
                                   100,
                                   101,
                                   1000,
                                   1001,
                                   10000,
                                   9999999,
                                   10000000,
                                   10000001,
                                   2147483647};
        const int kind = byte();
        if (kind < 128)
            return special[kind % int(std::size(special))];
        if (kind < 192)
            return byte();
        const auto bits = static_cast<std::uint32_t>(below(65536)) << 16
            | static_cast<std::uint32_t>(below(65536));
        return static_cast<int>(bits);
    }

    QByteArray bytes(int longest)
    {
        QByteArray result;
        for (int left = byte() % (longest + 1); left > 0 && !isEmpty(); --left)
            result.append(static_cast<char>(byte()));
        return result;
    }

    [[noreturn]] static void fail(const char* condition, const char* file, int line);

private:
    const std::uint8_t* m_next;
    const std::uint8_t* m_end;
};
