#pragma once

#include <memory>

namespace mindloft {

class UserPreview;
namespace Corvane {
class Style;
}

/// Shows the style's sample text in the style; the language's own where the style has none; nothing without a
/// style. Says so when a part of the style's definition cannot be read.
void ShowStyle(UserPreview& preview, const std::shared_ptr<Corvane::Style>& style);

}  // namespace mindloft
