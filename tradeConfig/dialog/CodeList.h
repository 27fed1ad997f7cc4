#pragma once

#include <QString>

/// The codes under which the items of a choice are stored, in the items' order. The first one
/// stands for every unknown code or index.
struct CodeList {
    static constexpr int count = 3;

    const char* codes[count];

    int indexOf(const QString& code) const
    {
        int index = count - 1;
        while (index > 0 && code != QLatin1String(codes[index]))
            --index;
        return index;
    }

    const char* at(int index) const { return codes[index >= 0 && index < count ? index : 0]; }
};
