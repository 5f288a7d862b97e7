#include "tests/controls/print/PrintFixture.h"

#include <algorithm>

namespace mindloft::test {

void TestPrinters::Add(const std::string& name, platform::PrinterPapers papers, bool isDefault) {
  const std::lock_guard lock(mutex_);
  installed_.push_back({name, "LPT1:", isDefault});
  papers_[name] = std::move(papers);
}

void TestPrinters::Remove(const std::string& name) {
  const std::lock_guard lock(mutex_);
  std::erase_if(installed_, [&](const platform::InstalledPrinter& each) { return each.name == name; });
  papers_.erase(name);
}

void TestPrinters::Hold() {
  const std::lock_guard lock(mutex_);
  isHeld_ = true;
}

void TestPrinters::Release() {
  const std::lock_guard lock(mutex_);
  isHeld_ = false;
  released_.notify_all();
}

std::vector<platform::InstalledPrinter> TestPrinters::Installed() {
  std::unique_lock lock(mutex_);
  released_.wait(lock, [this] { return !isHeld_; });
  return installed_;
}

platform::PrinterPapers TestPrinters::Papers(const platform::InstalledPrinter& printer) {
  std::unique_lock lock(mutex_);
  released_.wait(lock, [this] { return !isHeld_; });
  const auto found = papers_.find(printer.name);
  return found == papers_.end() ? platform::PrinterPapers() : found->second;
}

platform::PrinterPapers OfficePapers() {
  return {{"A4", "A5", "Letter"}, {9, 11, 1}, {{2100, 2970}, {1480, 2100}, {2159, 2794}}, 1};
}

void PrintFixture::SetUp() {
  PrivateServices::SetUp();
  printers_ = std::make_shared<TestPrinters>();
  printers_->Add("Labels", {{"Label"}, {300}, {{1000, 1500}}, 300});
  printers_->Add("Office", OfficePapers(), true);
  printers_->Add("Mute", {});
  fake_ = std::make_unique<platform::FakePrinters>(printers_);
}

void PrintFixture::TearDown() {
  printers_->Release();
  fake_.reset();
  PrivateServices::TearDown();
}

bool PrintFixture::Show(const PageSettings& settings, const ModalDriver::Script& script) {
  ModalDriver modal;
  modal.ExpectForm("frmPageSetup", script);
  frmPageSetup form(nullptr);
  const bool accepted = form.ShowPageSetup(settings);
  EXPECT_EQ(accepted, form.Accepted());
  chosen_ = form.Settings();
  EXPECT_EQ(form.GetPrinterName(), chosen_.printerName);
  EXPECT_EQ(form.GetPapersName(), chosen_.papersName);
  EXPECT_EQ(form.GetPaperWidth(), chosen_.paperWidth);
  EXPECT_EQ(form.GetPaperHeight(), chosen_.paperHeight);
  EXPECT_EQ(form.GetPaperLeftMargin(), chosen_.leftMargin);
  EXPECT_EQ(form.GetPaperRightMargin(), chosen_.rightMargin);
  EXPECT_EQ(form.GetPaperTopMargin(), chosen_.topMargin);
  EXPECT_EQ(form.GetPaperBottomMargin(), chosen_.bottomMargin);
  EXPECT_EQ(form.GetOrientation(), static_cast<std::int32_t>(chosen_.orientation));
  return accepted;
}

}  // namespace mindloft::test
