#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "sizewright/embedded/embedded_host.h"
#include "sizewright/frame/size_equip.h"

namespace sizewright {

/// A plant in memory on its own embedded host, attached to the thread for the life of the object.
class TestPlant {
 public:
  /// The text of a plant file.
  explicit TestPlant(std::string_view json);
  ~TestPlant();

  EmbeddedHost& host() { return *host_; }
  Plant& plant() { return *plant_; }

  /// Selects the item and makes its object in the design form. The object must go before the plant.
  template <class Equipment>
  std::unique_ptr<Equipment> make(std::string_view item, int interactive = 0,
                                  const char* mode = "") {
    select(item);
    return std::make_unique<Equipment>(interactive, "", "", "", "", mode, nullptr, host_->project(),
                                       host_->simCase());
  }
  void select(std::string_view item);

  // Slots of the item's component record (VPECOMP), project object and SIZE record. A number is
  // given as stored; one that is missing fails the test and is not a number.
  CvdSlot component(std::string_view item, std::string_view slot);
  CvdSlot project(std::string_view item, std::string_view slot);
  CvdSlot sizeRecord(std::string_view item, std::string_view slot);
  double number(std::string_view item, std::string_view slot);
  /// Unit text of a number of the component record; empty without one.
  std::string units(std::string_view item, std::string_view slot);
  /// Text of a slot of the component record; lines joined by line feeds, empty when missing.
  std::string text(std::string_view item, std::string_view slot);
  bool has(std::string_view item, std::string_view slot);
  /// A slot of any object of a named database.
  CvdSlot stored(std::string_view database, std::string_view object, std::string_view slot);

  /// Texts shown to the user so far.
  std::vector<std::string> dialogTexts() const;
  /// Progress reported so far: percent and text.
  std::vector<std::pair<int, std::string>> progress() const;

 private:
  std::unique_ptr<Plant> plant_;
  std::unique_ptr<EmbeddedHost> host_;
  std::unique_ptr<HostScope> scope_;
};

/// The rows of the form that an object returns.
std::vector<std::pair<std::string, std::string>> formOf(CSizeEquip& object);
/// The value of a label in the form that an object returns; empty when the form lacks it.
std::string formValue(CSizeEquip& object, std::string_view label);
/// Gives labels and values to an object's form.
int setForm(CSizeEquip& object, const std::vector<std::pair<std::string, std::string>>& rows);
/// The list has an entry with exactly this text.
bool holds(const CStrList& list, std::string_view entry);
/// The list has the lines of a text as neighbouring entries.
bool holdsLines(const CStrList& list, std::string_view text);

}  // namespace sizewright
