#pragma once

/**
 * Marks a function that touches a string of TradeParm.
 *
 * The record's 4-byte packing puts its strings at addresses that are no multiple of 8. That is the
 * contract, so such functions are exempt from the alignment sanitizer, and nothing else is.
 */
#define TOUCHES_PACKED_TEXT __attribute__((no_sanitize("alignment")))
