#include "backend/errors/Error.h"
#include "backend/tessaline/LanguageFile.h"
#include "fuzz/Fuzz.h"

// A language file of whatever content is read or refused.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    const auto file = mindloft::Tessaline::LanguageFile::Parse(mindloft::fuzz::TextOf(data, size));
    for (const auto& [number, text] : file.Texts()) mindloft::fuzz::Require(file.Text(number) == text);
    for (const auto& [form, captions] : file.Forms()) {
      for (const auto& [control, caption] : captions)
        mindloft::fuzz::Require(file.CaptionOf(form, control)->text == caption.text);
    }
  } catch (const mindloft::Error&) {
  }
  return 0;
}
