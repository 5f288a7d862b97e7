#include <gtest/gtest.h>
#include <wx/strconv.h>

#include <fstream>
#include <iterator>
#include <string>

#include "backend/tessaline/LanguageFile.h"
#include "tests/support/gui/PrivateServices.h"

namespace mindloft::test {
namespace {

class LanguageRegistryTest : public PrivateServices {};

/// A registry file's text; the system's editor wants UTF-16 with its mark.
wxString TextOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
  EXPECT_EQ(bytes.substr(0, 2), "\xff\xfe") << file;
  EXPECT_EQ(bytes.size() % 2, 0u) << file;
  return bytes.size() < 2 ? wxString() : wxString(bytes.data() + 2, wxMBConvUTF16LE(), bytes.size() - 2);
}

TEST_F(LanguageRegistryTest, EveryLanguageHasAFileThatSetsItselfAndTheMainWindowsCaption) {
  const auto codes = GetResource().Languages();
  EXPECT_EQ(codes.size(), 6u);
  for (const int code : codes) {
    const wxString file = GetResource().GetLanguageValue(wxString::Format("%d", code));
    ASSERT_EQ(file, wxString::Format("%d.reg", code));
    const auto language = Tessaline::LanguageFile::Load(LanguageFolder() / (std::to_string(code) + ".xml"));
    const wxString expected = wxString::Format(
        "Windows Registry Editor Version 5.00\r\n\r\n"
        "[HKEY_CURRENT_USER\\Software\\Ordwell\\Mindloft\\Resource]\r\n"
        "\"CurrentLangue\"=\"%d\"\r\n\r\n"
        "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Ordwell\\Mindloft\\Resource\\Forms\\frmSysAdmin]\r\n"
        "@=\"%s\"\r\n\r\n",
        code, language.Title("frmSysAdmin").value());
    EXPECT_EQ(TextOf(LanguageFolder() / file.ToStdString()), expected) << code;
  }
}

}  // namespace
}  // namespace mindloft::test
