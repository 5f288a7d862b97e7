#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace mindloft::platform {

/// A printer that the user of this computer can print on.
struct InstalledPrinter {
  std::string name;
  std::string port;  ///< where the system has it connected
  bool isDefault = false;

  bool operator==(const InstalledPrinter&) const = default;
};

/// Tenths of a millimetre.
struct PaperSize {
  std::int32_t width = 0;
  std::int32_t height = 0;

  bool operator==(const PaperSize&) const = default;
};

/// The papers that a printer's driver offers: tables with the same index.
struct PrinterPapers {
  std::vector<std::string> names;  ///< as the driver words them, at most kLongestPaperName characters
  std::vector<std::uint16_t> numbers;
  std::vector<PaperSize> sizes;
  std::uint16_t current = 0;  ///< the number of the paper that the printer uses unless told; 0: not known

  std::size_t Count() const { return sizes.size(); }
  bool IsEmpty() const { return sizes.empty(); }
};

inline constexpr std::size_t kLongestPaperName = 64;

/// The printers as the system tells of them. What it fails to tell is missing from the answers: nothing is
/// thrown. An answer can take seconds (a server far away), and the calls are made on any thread.
class Printers {
 public:
  virtual ~Printers() = default;
  virtual std::vector<InstalledPrinter> Installed() = 0;
  /// Empty also when the printer is no longer there.
  virtual PrinterPapers Papers(const InstalledPrinter& printer) = 0;
};

/// The system's, or what a test has put in their place.
std::shared_ptr<Printers> GetPrinters();

/// Puts other printers in the place of the system's in a test, until it goes.
class FakePrinters {
 public:
  explicit FakePrinters(std::shared_ptr<Printers> printers);
  ~FakePrinters();
  FakePrinters(const FakePrinters&) = delete;
  FakePrinters& operator=(const FakePrinters&) = delete;
};

/// What GetPrinters comes to: the system's own.
std::shared_ptr<Printers> MakeSystemPrinters();

}  // namespace mindloft::platform
