#include "sizewright/host/slot.h"

#include <utility>

#include "sizewright/host/text.h"

namespace sizewright {

CvdSlot CvdSlot::ofText(std::string_view text) {
  return ofList(splitText(text, '\n'));
}

CvdSlot CvdSlot::ofList(std::vector<std::string> lines) {
  // A line that itself holds line feeds is several lines, so that the value reads back the same.
  std::string joined = joinTexts(lines, '\n');
  if (lines.size() != 1 || joined.find('\n') != std::string::npos) lines = splitText(joined, '\n');

  auto value = std::make_shared<Value>();
  value->kind = lines.size() > 1 ? Kind::list : Kind::text;
  value->text = std::move(joined);
  value->lines = std::move(lines);
  CvdSlot slot;
  slot.value_ = std::move(value);
  return slot;
}

CvdSlot CvdSlot::ofNumber(double number, std::string_view units) {
  auto value = std::make_shared<Value>();
  value->kind = Kind::number;
  value->number = number;
  value->text = units;
  CvdSlot slot;
  slot.value_ = std::move(value);
  return slot;
}

const std::vector<std::string>& CvdSlot::List() const {
  static const std::vector<std::string> kNoLines;
  return IsText() || IsList() ? value_->lines : kNoLines;
}

bool operator==(const CvdSlot& a, const CvdSlot& b) {
  if (a.value_ == b.value_) return true;
  if (!a.IsValid() || !b.IsValid()) return false;
  return a.value_->kind == b.value_->kind && a.value_->number == b.value_->number &&
         a.value_->text == b.value_->text;
}

}  // namespace sizewright
