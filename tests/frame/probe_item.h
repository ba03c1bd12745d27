#pragma once

#include <string>
#include <vector>

#include "sizewright/frame/sizing_item.h"

namespace sizewright {

/// Data block of the probe: two numbers that start unset and one that starts at 2.
struct ProbeData {
  double first = 0.0;
  double second = 0.0;
  double count = 2.0;
};

/// The smallest sizing object: it sizes nothing, notes the operations that are called on it and
/// lets a test reach what the base class protects.
class ProbeItem : public SizingItem<ProbeData> {
 public:
  using SizingItem::SizingItem;

  int Size() override { return note("Size", 1); }
  int GetLastInfo() override { return note("GetLastInfo", 1); }
  int SetValues(CStrList&, CStrList&) override { return note("SetValues", 1); }
  int ReturnValues(CStrList&, CStrList&) override { return note("ReturnValues", 1); }
  int UpdateConnectivity() override { return note("UpdateConnectivity", connectivityResult); }
  int SaveParameters() override { return note("SaveParameters", saveResult); }

  std::vector<std::string> calls;
  int connectivityResult = 1;
  int saveResult = 1;

  using CSizeEquip::ObtainDesignVelocity;
  using CSizeEquip::SetBaseObject;
  using CSizeEquip::szInitialize;
  using CSizeEquip::szTerminate;

  using CSizeEquip::allowsResize;
  using CSizeEquip::categoryIs;
  using CSizeEquip::fail;
  using CSizeEquip::findStreams;
  using CSizeEquip::formText;
  using CSizeEquip::itemIs;
  using CSizeEquip::openStream;
  using CSizeEquip::openStreams;
  using CSizeEquip::readComponentOrBlock;
  using CSizeEquip::readDesignConditions;
  using CSizeEquip::readOr;
  using CSizeEquip::readSentinel;
  using CSizeEquip::readSource;
  using CSizeEquip::resolved;
  using CSizeEquip::rewritePorts;
  using CSizeEquip::showBox;
  using CSizeEquip::showFormNumber;
  using CSizeEquip::showStream;
  using CSizeEquip::showText;
  using CSizeEquip::slotFor;
  using CSizeEquip::source;
  using CSizeEquip::takeFormNumber;
  using CSizeEquip::tell;
  using CSizeEquip::warn;
  using CSizeEquip::writeGaugePressure;
  using CSizeEquip::writeResult;

  using SizingItem::data;
  using SizingItem::exits;
  using SizingItem::firstRun;
  using SizingItem::hasBothStreams;
  using SizingItem::inlets;
  using SizingItem::read;
  using SizingItem::showForm;
  using SizingItem::takeForm;
  using SizingItem::takeStreams;
  using SizingItem::write;

  using CSizeEquip::argFirst;
  using CSizeEquip::argMode;
  using CSizeEquip::argProjectFile;
  using CSizeEquip::argSizeFile;
  using CSizeEquip::argThird;
  using CSizeEquip::calculations;
  using CSizeEquip::categoryCode;
  using CSizeEquip::component;
  using CSizeEquip::componentName;
  using CSizeEquip::designFile;
  using CSizeEquip::equipFullCode;
  using CSizeEquip::errors;
  using CSizeEquip::interactive;
  using CSizeEquip::isValid;
  using CSizeEquip::itemCode;
  using CSizeEquip::itemModel;
  using CSizeEquip::noDialogs;
  using CSizeEquip::notes;
  using CSizeEquip::parentWindow;
  using CSizeEquip::procFile;
  using CSizeEquip::project;
  using CSizeEquip::projectComponentName;
  using CSizeEquip::projectId;
  using CSizeEquip::projectObject;
  using CSizeEquip::pxpropFile;
  using CSizeEquip::reservedFile;
  using CSizeEquip::simBlockName;
  using CSizeEquip::simCase;
  using CSizeEquip::simObject;
  using CSizeEquip::simulatorType;
  using CSizeEquip::sinkList;
  using CSizeEquip::sizeFile;
  using CSizeEquip::sourceList;
  using CSizeEquip::unitType;
  using CSizeEquip::utilFile;
  using CSizeEquip::vpeCompFile;
  using CSizeEquip::vpeProcFile;
  using CSizeEquip::vpeProjFile;
  using CSizeEquip::warnings;
  using CSizeEquip::warningSlotCount;

 private:
  int note(const char* operation, int result) {
    calls.emplace_back(operation);
    return result;
  }
};

}  // namespace sizewright
