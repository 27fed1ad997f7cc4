#pragma once

#include <algorithm>
#include <vector>

/**
 * A shortest sequence that still fails: no single element of the result can be left out.
 *
 * @p fails(sequence) must be true for @p sequence itself. Chunks are tried from halves down to
 * single elements.
 */
template <typename T, typename Fails>
std::vector<T> shortened(std::vector<T> sequence, const Fails& fails)
{
    std::size_t chunk = std::max<std::size_t>(1, sequence.size() / 2);
    for (bool removed = true; removed || chunk > 1; chunk = std::max<std::size_t>(1, chunk / 2)) {
        removed = false;
        for (std::size_t start = 0; start < sequence.size();) {
            const std::size_t end = std::min(start + chunk, sequence.size());
            std::vector<T> rest(sequence.begin(), sequence.begin() + std::ptrdiff_t(start));
            rest.insert(rest.end(), sequence.begin() + std::ptrdiff_t(end), sequence.end());
            if (fails(rest)) {
                sequence = std::move(rest);
                removed = true;
            } else {
                start = end;
            }
        }
    }
    return sequence;
}
