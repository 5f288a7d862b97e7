#include "platform/linux/CupsPapers.h"

#include <algorithm>
#include <string_view>

#include "platform/linux/PaperNumbers.h"

namespace mindloft::platform {
namespace {

using namespace std::string_view_literals;

std::vector<cups_size_t> ReadSizes(const CupsLibrary& cups, http_t* server, cups_dest_t* destination,
                                   cups_dinfo_t* info) {
  std::vector<cups_size_t> sizes;
  const int count = cups.mediaCount(server, destination, info, CUPS_MEDIA_FLAGS_DEFAULT);
  cups_size_t size{};
  for (int index = 0; index < count; ++index) {
    if (cups.mediaByIndex(server, destination, info, index, CUPS_MEDIA_FLAGS_DEFAULT, &size))
      sizes.push_back(size);
  }
  return sizes;
}

bool IsBorderless(const cups_size_t& size) {
  return size.left == 0 && size.right == 0 && size.top == 0 && size.bottom == 0;
}

/// The standard's own record of the paper, whose size is not rounded to points as a driver's is; null when
/// the standard has none.
const pwg_media_t* StandardPaper(const CupsLibrary& cups, const cups_size_t& size) {
  std::string name = size.media;
  constexpr auto suffix = "_borderless"sv;
  if (std::string_view(name).ends_with(suffix)) name.resize(name.size() - suffix.size());
  return name.starts_with("custom") ? nullptr : cups.standardMedia(name.c_str());
}

/// The first characters of a UTF-8 text.
std::string Shortened(std::string text) {
  std::size_t characters = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool continues = (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
    if (!continues && characters++ == kLongestPaperName) text.resize(at);
  }
  return text;
}

/// The server counts hundredths of a millimetre.
std::int32_t Tenths(int hundredths) {
  return (hundredths + 5) / 10;
}

PaperSize SizeOf(const CupsLibrary& cups, const cups_size_t& size) {
  if (const pwg_media_t* standard = StandardPaper(cups, size))
    return {Tenths(standard->width), Tenths(standard->length)};
  return {Tenths(size.width), Tenths(size.length)};
}

}  // namespace

PrinterPapers ReadCupsPapers(const CupsLibrary& cups, http_t* server, cups_dest_t* destination,
                             cups_dinfo_t* info) {
  const auto sizes = ReadSizes(cups, server, destination, info);
  // Where no paper has borders that need not be said of each.
  const bool allBorderless = std::all_of(sizes.begin(), sizes.end(), &IsBorderless);
  PrinterPapers papers;
  PaperNumbers numbers;
  for (const cups_size_t& size : sizes) {
    cups_size_t worded = size;
    if (allBorderless) worded.left = worded.right = worded.top = worded.bottom = 1;
    const char* wording = cups.localizeMedia(server, destination, info, CUPS_MEDIA_FLAGS_DEFAULT, &worded);
    std::string name = wording ? wording : size.media;
    // Where the library has no word in the user's language it tells the size, which says less than the short
    // name that drivers give the paper everywhere.
    const pwg_media_t* standard = StandardPaper(cups, size);
    const bool isOnlySize = name.find(" x ") != std::string::npos;
    if (isOnlySize && standard && standard->ppd) name = standard->ppd;
    papers.names.push_back(Shortened(std::move(name)));
    papers.numbers.push_back(numbers.Give(size.media));
    papers.sizes.push_back(SizeOf(cups, size));
  }
  cups_size_t present{};
  if (cups.mediaDefault(server, destination, info, CUPS_MEDIA_FLAGS_DEFAULT, &present))
    papers.current = numbers.Find(present.media);
  return papers;
}

}  // namespace mindloft::platform
