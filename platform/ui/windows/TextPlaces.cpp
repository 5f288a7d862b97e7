#include "platform/ui/TextPlaces.h"

#include <windows.h>
#include <usp10.h>

namespace mindloft::platform {

std::vector<int> CaretOffsets(const wxDC& dc, const wxString& text) {
  const int length = static_cast<int>(text.length());
  std::vector<int> offsets(text.length() + 1, 0);
  const auto wide = text.wc_str();
  SCRIPT_STRING_ANALYSIS analysis = nullptr;
  // As many glyphs as the system advises to have room for.
  const int glyphs = length * 3 / 2 + 16;
  if (length == 0 ||
      FAILED(ScriptStringAnalyse(static_cast<HDC>(dc.GetHDC()), static_cast<const wchar_t*>(wide), length,
                                 glyphs, -1, SSA_GLYPHS | SSA_FALLBACK, 0, nullptr, nullptr, nullptr, nullptr,
                                 nullptr, &analysis)))
    return offsets;
  for (int i = 0; i < length; ++i)
    ScriptStringCPtoX(analysis, i, FALSE, &offsets[static_cast<std::size_t>(i)]);
  ScriptStringCPtoX(analysis, length - 1, TRUE, &offsets.back());
  ScriptStringFree(&analysis);
  return offsets;
}

}  // namespace mindloft::platform
