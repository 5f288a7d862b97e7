#pragma once

#include <gtest/gtest.h>
#include <wx/richtext/richtextctrl.h>

#include "backend/tessaline/Text.h"
#include "tests/editors/members/MembersFixture.h"

namespace mindloft::test {

class StylesFixture : public MembersFixture {
 protected:
  std::shared_ptr<Corvane::Style> StyleOf(const std::string& name) {
    const auto styles = Server().Styles();
    for (const auto& record : styles->View().Page(0, styles->Count()))
      if (record.name == name) return styles->Item(Corvane::IdText(record.id));
    return nullptr;
  }
  std::shared_ptr<Corvane::Style> AddStyle(const std::string& name, const Corvane::StyleFormat& format) {
    const auto style = Server().Styles()->Add();
    style->SetName(name);
    style->SetFormat(format);
    style->Update();
    return style;
  }
  std::shared_ptr<Corvane::KDomain> Alpha() { return Server().KDomains()->Item(domainId_)->KDomain(); }
  void UseInAlpha(const Corvane::Style& style) {
    const auto domain = Alpha();
    domain->SetStyleId(style.Id());
    domain->Update();
  }
  static wxRichTextCtrl& Preview(const User& user) { return user.Find<wxRichTextCtrl>("picPreview"); }
  static wxString Shown(const User& user) { return Preview(user).GetValue(); }
  ModalDriver modal_;
};

}  // namespace mindloft::test
