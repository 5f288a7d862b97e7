#pragma once

#include <string>
#include <string_view>

namespace mindloft::Corvane {

/// The kinds of elements by what may be set for them; each may hold what those before it may.
enum class AttributeOwner { Run, Paragraph, Box };

/// Whether an element of that kind may have the attribute with that value.
bool IsSafeAttribute(AttributeOwner owner, std::string_view name, std::string_view value);

}  // namespace mindloft::Corvane
