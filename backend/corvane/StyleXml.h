#pragma once

#include <string>
#include <string_view>

#include "backend/corvane/StyleFormat.h"

namespace mindloft::Corvane {

/// What a style's definition says: `<style font="serif" size="11" bold="true" .../>`.
struct StyleReading {
  StyleFormat format;   ///< what cannot be read has its default
  std::string problem;  ///< what that was, for the log; empty: nothing
};

/// Never fails, whatever the text is. An empty one is a style that has all defaults.
StyleReading ReadStyle(std::string_view definition);

/// The definition of a format. What `former`, a definition, holds beyond the format stays in it: a newer
/// console may know more.
std::string WriteStyle(const StyleFormat& format, std::string_view former = {});

}  // namespace mindloft::Corvane
