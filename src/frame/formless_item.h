#pragma once

#include "sizewright/frame/sizing_item.h"

namespace sizewright {

/// An equipment class without a user form: the form operations take and show nothing.
template <class Data>
class FormlessItem : public SizingItem<Data> {
 public:
  using SizingItem<Data>::SizingItem;

  /// Does nothing; 0.
  int GetLastInfo() override { return 0; }
  /// Stores nothing; 1 when both lists have entries.
  int SetValues(CStrList& names, CStrList& texts) override {
    return names.IsEmpty() || texts.IsEmpty() ? 0 : 1;
  }
  /// Empties both lists; 0.
  int ReturnValues(CStrList& names, CStrList& texts) override {
    names.RemoveAll();
    texts.RemoveAll();
    return 0;
  }

 protected:
  /// Finds the streams of one inlet tag and one exit tag; 1 when both lists hold a stream.
  int findBothStreams(std::string_view inletTag, std::string_view exitTag) {
    this->checkInlets();
    this->findStreams(this->inlets(), kInlet, "Inlet stream", inletTag);
    this->checkExits();
    this->findStreams(this->exits(), kExit, "Exit stream", exitTag);
    return this->hasBothStreams();
  }

  /// Rewrites the ports of both lists under one tag each. Returns 1.
  int rewriteBothPorts(std::string_view inletTag, std::string_view exitTag) {
    this->rewritePorts(kInlet, this->inlets(), inletTag, "_in_");
    this->rewritePorts(kExit, this->exits(), exitTag, "_ex_");
    return 1;
  }

  /// Progress of a design report around the writing of the results.
  template <class Write>
  static void report(Write write) {
    status_write(75, 3, "Preparing the design report. Please Wait ...");
    status_write(79, 3, "Writing preliminary information.");
    status_write(80, 3, "Writing design parameters");
    write();
    status_write(95, 3, "Completed sizing of VPE component");
  }
};

}  // namespace sizewright
