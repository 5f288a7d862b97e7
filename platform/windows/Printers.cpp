#include "platform/Printers.h"

#include <windows.h>
#include <winspool.h>

#include <algorithm>
#include <optional>

#include "platform/windows/Wide.h"

namespace mindloft::platform {
namespace {

/// In the system's code page, which the calls that end in A take.
std::string InCodePage(const std::string& utf8) {
  const std::wstring wide = Wide(utf8);
  const int size = static_cast<int>(wide.size());
  const int bytes = WideCharToMultiByte(CP_ACP, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
  std::string text(static_cast<std::size_t>(std::max(bytes, 0)), '\0');
  WideCharToMultiByte(CP_ACP, 0, wide.data(), size, text.data(), bytes, nullptr, nullptr);
  return text;
}

/// A name of the driver's table: it ends at its first NUL, or where its place ends, which may be inside a
/// character.
std::string FromCodePage(const char* name, std::size_t place) {
  const std::size_t length = static_cast<std::size_t>(std::find(name, name + place, '\0') - name);
  std::wstring wide(place, L'\0');
  const int characters = MultiByteToWideChar(CP_ACP, 0, name, static_cast<int>(length), wide.data(),
                                             static_cast<int>(wide.size()));
  wide.resize(static_cast<std::size_t>(std::max(characters, 0)));
  constexpr wchar_t Broken = 0xFFFD;
  while (length == place && !wide.empty() && wide.back() == Broken) wide.pop_back();
  return Narrow(wide);
}

class PaperDriver {
 public:
  PaperDriver(const InstalledPrinter& printer)
      : device_(InCodePage(printer.name)), port_(InCodePage(printer.port)) {}

  /// How many entries the driver has; nothing for one that it does not know.
  std::size_t Count(WORD capability) const { return Ask(capability, nullptr); }

  /// The driver's table, at most `count` entries of it. The call is not told how much room there is, and the
  /// driver's settings may change between two calls.
  template <typename Entry>
  std::vector<Entry> Table(WORD capability, std::size_t count) const {
    constexpr std::size_t Spare = 64;
    std::vector<Entry> table(2 * count + Spare);
    table.resize(std::min(count, Ask(capability, reinterpret_cast<char*>(table.data()))));
    return table;
  }

 private:
  std::size_t Ask(WORD capability, char* output) const {
    const int answer = DeviceCapabilitiesA(device_.c_str(), port_.c_str(), capability, output, nullptr);
    return static_cast<std::size_t>(std::max(answer, 0));
  }

  std::string device_;
  std::string port_;
};

struct PaperName {
  char text[kLongestPaperName];
};

/// The number of the paper that the user's settings of the printer name.
std::uint16_t CurrentPaper(const InstalledPrinter& printer) {
  std::wstring name = Wide(printer.name);
  HANDLE handle = nullptr;
  if (!OpenPrinterW(name.data(), &handle, nullptr)) return 0;
  std::uint16_t paper = 0;
  const LONG bytes = DocumentPropertiesW(nullptr, handle, name.data(), nullptr, nullptr, 0);
  if (bytes >= static_cast<LONG>(sizeof(DEVMODEW))) {
    std::vector<std::max_align_t> room(static_cast<std::size_t>(bytes) / sizeof(std::max_align_t) + 1);
    auto* mode = reinterpret_cast<DEVMODEW*>(room.data());
    const bool told = DocumentPropertiesW(nullptr, handle, name.data(), mode, nullptr, DM_OUT_BUFFER) == IDOK;
    if (told && (mode->dmFields & DM_PAPERSIZE)) paper = static_cast<std::uint16_t>(mode->dmPaperSize);
  }
  ClosePrinter(handle);
  return paper;
}

std::wstring DefaultPrinter() {
  DWORD size = 0;
  GetDefaultPrinterW(nullptr, &size);
  std::wstring name(size, L'\0');
  if (size == 0 || !GetDefaultPrinterW(name.data(), &size)) return {};
  name.resize(wcslen(name.c_str()));
  return name;
}

/// The system's records of all printers, with their number.
struct PrinterRecords {
  std::vector<std::max_align_t> room;
  DWORD count = 0;
};

std::optional<PrinterRecords> EnumerateOnce(DWORD& bytes) {
  PrinterRecords records;
  records.room.resize(bytes / sizeof(std::max_align_t) + 1);
  const DWORD room = static_cast<DWORD>(records.room.size() * sizeof(std::max_align_t));
  const bool told = EnumPrintersW(PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS, nullptr, 2,
                                  reinterpret_cast<BYTE*>(records.room.data()), room, &bytes, &records.count);
  if (told) return records;
  return std::nullopt;
}

class SystemPrinters : public Printers {
 public:
  std::vector<InstalledPrinter> Installed() override {
    DWORD bytes = 0;
    auto records = EnumerateOnce(bytes);
    // Once more with the room that it needs, and again when a printer has been added meanwhile.
    for (int tries = 0; !records && GetLastError() == ERROR_INSUFFICIENT_BUFFER && tries < 5; ++tries)
      records = EnumerateOnce(bytes);
    if (!records) return {};
    const std::wstring defaultName = DefaultPrinter();
    std::vector<InstalledPrinter> printers;
    const auto* record = reinterpret_cast<const PRINTER_INFO_2W*>(records->room.data());
    for (DWORD index = 0; index < records->count; ++index, ++record) {
      if (!record->pPrinterName) continue;
      printers.push_back({Narrow(record->pPrinterName), Narrow(record->pPortName ? record->pPortName : L""),
                          record->pPrinterName == defaultName});
    }
    return printers;
  }

  PrinterPapers Papers(const InstalledPrinter& printer) override {
    const PaperDriver driver(printer);
    const std::size_t count = driver.Count(DC_PAPERS);
    if (count == 0) return {};
    const auto names = driver.Table<PaperName>(DC_PAPERNAMES, count);
    PrinterPapers papers;
    papers.numbers = driver.Table<WORD>(DC_PAPERS, count);
    for (const POINT& size : driver.Table<POINT>(DC_PAPERSIZE, count))
      papers.sizes.push_back({size.x, size.y});
    for (const PaperName& name : names) papers.names.push_back(FromCodePage(name.text, sizeof name.text));
    // A driver that does not answer all of them with the same number has no tables with the same index.
    if (papers.names.size() != papers.Count() || papers.numbers.size() != papers.Count()) return {};
    papers.current = CurrentPaper(printer);
    return papers;
  }
};

}  // namespace

static_assert(DC_PAPERS == 2 && DC_PAPERSIZE == 3 && DC_PAPERNAMES == 16);

std::shared_ptr<Printers> MakeSystemPrinters() {
  return std::make_shared<SystemPrinters>();
}

}  // namespace mindloft::platform
