#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/RegistryStore.h"
#include "platform/registry/RegistryTree.h"

namespace mindloft::platform {

// The right side of a value line: "text", dword:0000002a, hex(7):61,00,00,00.

/// Nothing when it is none of these. `raw` of the result is set for every form but the plain two.
std::optional<RegistryEntry> ParseRegistryData(std::string_view data);

/// The way back. Data that were read in another form are written in that form.
std::string WriteRegistryData(const RegistryEntry& entry);

/// A quoted text with \\ and \" inside; `rest` is what follows the closing quotation mark.
std::optional<std::string> ParseQuoted(std::string_view data, std::string_view& rest);
std::string Quoted(std::string_view text);

}  // namespace mindloft::platform
