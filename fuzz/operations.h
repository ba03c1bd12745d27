#pragma once

#include "bytes.h"
#include "sizewright/frame/size_equip.h"

namespace sizewright::fuzz {

/// A value of any kind: numbers at the edges and beyond, texts, names, long texts, lists.
CvdSlot anyValue(Bytes& bytes);

/// Drives an object through operations in an order that the bytes choose.
void drive(CSizeEquip& object, int (*initialize)(CSizeEquip&), Bytes& bytes);

}  // namespace sizewright::fuzz
