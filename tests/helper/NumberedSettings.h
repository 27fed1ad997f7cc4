#pragma once

/// Interface settings that carry a number: the next numbers have others, up to the hundred and
/// twenty-third.
inline int numberedLanguage(int number) { return number % 3; }
inline int numberedScale(int number) { return 100 + 5 * (number % 41); }
