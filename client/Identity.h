#pragma once

/// What the system knows the client by. On macOS the bundle says the same.
namespace Identity {

constexpr const char* domain = "kivotrade.com";
constexpr const char* name = "tradeclient";
constexpr const char* identifier = "com.kivotrade.tradeclient";

} // namespace Identity
