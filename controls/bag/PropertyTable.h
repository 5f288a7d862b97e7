#pragma once

#include <wx/string.h>

#include <functional>
#include <initializer_list>
#include <utility>
#include <vector>

#include "backend/errors/Error.h"
#include "backend/tessaline/Text.h"
#include "controls/bag/PropertyBag.h"
#include "controls/bag/PropertyText.h"

namespace mindloft {

/// Which properties a kind of control keeps, in the order in which they are read and written: the one place
/// that names them, with their defaults.
template <typename Control>
class PropertyTable {
 public:
  /// One kept property: `KeptProperty("MinValue", &C::MinValue, &C::SetMinValue, 0)`.
  struct Entry {
    wxString name;
    std::function<void(Control&, const wxString*)> read;  ///< null: the property is missing
    std::function<wxString(const Control&)> write;
  };

  PropertyTable(std::initializer_list<Entry> entries) : entries_(entries) {}
  /// What several kinds of control share, and after it what this one adds.
  PropertyTable(std::vector<Entry> shared, std::initializer_list<Entry> own) : entries_(std::move(shared)) {
    entries_.insert(entries_.end(), own);
  }

  /// Sets every property, a missing one to its default. Throws, naming the property, when the bag holds one
  /// that the control does not have or a text of the wrong type; what stands before it has been set then.
  void Read(Control& control, const PropertyBag& bag) const {
    for (const auto& [name, text] : bag.Entries()) {
      if (!Has(name)) throw Error(ErrorNumber::Unexpected, "there is no property \"" + ToUtf8(name) + "\"");
    }
    for (const Entry& entry : entries_) {
      try {
        entry.read(control, bag.Find(entry.name));
      } catch (const Error& error) {
        throw Error(error.Number(), ToUtf8(entry.name) + ": " + error.Description());
      }
    }
  }

  PropertyBag Write(const Control& control) const {
    PropertyBag bag;
    for (const Entry& entry : entries_) bag.Write(entry.name, entry.write(control));
    return bag;
  }

  const std::vector<Entry>& Entries() const { return entries_; }

 private:
  bool Has(const wxString& name) const {
    for (const Entry& entry : entries_) {
      if (entry.name == name) return true;
    }
    return false;
  }

  std::vector<Entry> entries_;
};

/// A kept property. The default is a value, or a function of the control for one that depends on the
/// properties read before it.
template <typename Control, typename Value, typename Argument, typename Default>
typename PropertyTable<Control>::Entry KeptProperty(const char* name, Value (Control::*get)() const,
                                                    void (Control::*set)(Argument), Default otherwise) {
  using Kept = std::decay_t<Value>;
  return {name,
          [set, otherwise = std::move(otherwise)](Control& control, const wxString* text) {
            if (text) return (control.*set)(PropertyText<Kept>::Parse(*text));
            if constexpr (std::is_invocable_v<Default, const Control&>)
              (control.*set)(otherwise(std::as_const(control)));
            else
              (control.*set)(Kept(otherwise));
          },
          [get](const Control& control) { return PropertyText<Kept>::Format((control.*get)()); }};
}

/// The above for a property of a base class, which several kinds of control share:
/// `InheritedProperty<C>(...)`.
template <typename Control, typename Owner, typename Value, typename Argument, typename Default>
typename PropertyTable<Control>::Entry InheritedProperty(const char* name, Value (Owner::*get)() const,
                                                         void (Owner::*set)(Argument), Default otherwise) {
  return KeptProperty<Control, Value, Argument, Default>(name, get, set, std::move(otherwise));
}

}  // namespace mindloft
