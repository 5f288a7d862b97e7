#pragma once

#include "controls/bag/PropertyBag.h"
#include "controls/bag/PropertyTable.h"

namespace mindloft {

/// A control whose properties are kept in a property bag, whatever its class.
class KeepsProperties {
 public:
  virtual ~KeepsProperties() = default;
  /// As PropertyTable::Read; the bag counts as unchanged afterwards.
  virtual void ReadProperties(const PropertyBag& bag) = 0;
  virtual PropertyBag WriteProperties() const = 0;
  /// Whether a property was set since the properties were read.
  bool ArePropertiesChanged() const { return changed_; }

 protected:
  /// Every setter of a kept property calls this.
  void PropertyChanged() { changed_ = true; }
  void PropertiesUnchanged() { changed_ = false; }

 private:
  bool changed_ = false;
};

/// The above for a control that has `static const PropertyTable<Control>& Properties()`. `Base` is a
/// KeepsProperties too: what several kinds of control share.
template <typename Control, typename Base = KeepsProperties>
class BagControl : public Base {
 public:
  using Base::Base;
  void ReadProperties(const PropertyBag& bag) override {
    Control::Properties().Read(static_cast<Control&>(*this), bag);
    this->PropertiesUnchanged();
  }
  PropertyBag WriteProperties() const override {
    return Control::Properties().Write(static_cast<const Control&>(*this));
  }
};

}  // namespace mindloft
