#pragma once

#include "sizewright/frame/formless_item.h"

namespace sizewright {

/// Cost defaults of an item that is not sized.
struct PlainItemData {
  double unused = 0.0;  // kept: nothing reads or writes it
  double materialCostPerUnit = 0.0;
  int codeOfAccount = 100;
};

/// An item that is not sized: it keeps its ports and, in the family of simple items, gets a code of
/// account and a material cost where its record has none. `Size` always returns 1.
class CQObj : public FormlessItem<PlainItemData> {
 public:
  using FormlessItem::FormlessItem;

  int Size() override { return GetStreamInfo(); }
  /// Always 1, with or without streams.
  int GetStreamInfo() override;
  int UpdateConnectivity() override;
  int SaveParameters() override;

 private:
  void writeDefault(const char* slot, std::string_view text);
};

}  // namespace sizewright
