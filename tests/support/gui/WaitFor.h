#pragma once

#include <functional>
#include <string>

namespace mindloft::test {

/// Lets the event loop work until the condition holds. Throws when it does not within ten seconds: `what`
/// says what was waited for. Tests wait for conditions, never for a time.
void WaitFor(const std::function<bool()>& condition, const std::string& what);

/// Lets the event loop do all that is pending: paint, layout, posted calls.
void Settle();

}  // namespace mindloft::test
