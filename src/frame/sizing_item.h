#pragma once

#include <memory>
#include <span>
#include <utility>

#include "sizewright/frame/size_equip.h"
#include "sizewright/frame/stream_lists.h"
#include "sizewright/frame/tables.h"
#include "sizewright/host/list2.h"
#include "sizewright/host/messages.h"

namespace sizewright {

/// What every equipment class has beyond `CSizeEquip`: the four constructor forms, a data block,
/// the stream lists, the first-run flag, and the reading of its tables.
///
/// `Data` is a plain struct whose default values are the fresh state. A copy of an object shares
/// the data block, the stream lists and the first-run flag with its source; they go with the last
/// of them.
template <class Data, ExitRelease exitRelease = ExitRelease::freed>
class SizingItem : public CSizeEquip {
 public:
  SizingItem(int interactiveMode, const char* first, const char* projectFile, const char* third,
             const char* sizeFileName, const char* mode, void* window, CvdProject* hostProject,
             CvdSimCase* hostCase)
      : CSizeEquip(interactiveMode, first, projectFile, third, sizeFileName, mode, window,
                   hostProject, hostCase) {}
  SizingItem(CvdProject* hostProject, CvdSimCase* hostCase, const char* blockName,
             const char* ignored1, const char* ignored2)
      : CSizeEquip(hostProject, hostCase, blockName, ignored1, ignored2) {}
  /// A fresh object of this class from an object of another class.
  explicit SizingItem(const CSizeEquip& other) : CSizeEquip(other) {}
  SizingItem(const SizingItem& other) = default;
  SizingItem& operator=(const SizingItem& other) = default;

  /// Restores the fresh state: data block cleared, lists released as `exitRelease` tells, first run
  /// ahead. Returns 1.
  int Initialize() {
    data() = Data{};
    state_->streams.release();
    state_->firstRun = 1;
    return 1;
  }

  /// Replace the list by a copy of the one given; 1 when copied.
  int SetInletStreams(void* list) { return replaceList(inlets(), list); }
  int SetExitStreams(void* list) { return replaceList(exits(), list); }
  /// Copy the list into the one given, when both exist.
  int GetInletStreams(void* list) { return copyList(inlets(), list); }
  int GetExitStreams(void* list) { return copyList(exits(), list); }

  /// The data block, in internal units.
  [[nodiscard]] const Data& values() const { return state_->data; }

 protected:
  Data& data() { return state_->data; }
  void*& inlets() { return state_->streams.inlets(); }
  void*& exits() { return state_->streams.exits(); }
  StreamLists& streamLists() { return state_->streams; }
  int& firstRun() { return state_->firstRun; }

  // Progress of the search for streams.
  static void checkInlets() { status_write(35, 3, "Checking inlets.."); }
  static void checkExits() { status_write(35, 3, "Checking exits..."); }
  /// 1 when both lists hold a stream.
  int hasBothStreams() { return list2_length(inlets()) > 0 && list2_length(exits()) > 0 ? 1 : 0; }

  /// Reads the fields that are not positive yet.
  void read(std::span<const SourceRow<Data>> rows) {
    for (const SourceRow<Data>& row : rows) {
      readSource(data().*row.field, row.from, resolved(row.slot), row.units, row.lookup);
    }
  }

  /// Reads the fields that are not positive yet from the design criteria; those without a criterion
  /// take their fallback.
  void readCriteria(std::span<const CriterionRow<Data>> rows) {
    for (const CriterionRow<Data>& row : rows) {
      double& field = data().*row.field;
      if (field > 0.0) continue;
      if (GetValueFromDesCriteria(row.name, field, row.units) == 0) field = row.fallback;
    }
  }

  /// Reads the fields that are not positive yet from the project's own record, under the names of
  /// the criteria.
  void readProject(std::span<const CriterionRow<Data>> rows) {
    for (const CriterionRow<Data>& row : rows) {
      readSource(data().*row.field, From::projectObject, row.name, row.units, Lookup::own);
    }
  }

  /// Replaces the stream lists by the one inlet and the one exit that a form names.
  void takeStreams(std::string_view inletLabel, std::string_view exitLabel, const CStrList& names,
                   const CStrList& texts) {
    state_->streams.restart();
    const auto take = [&](void* list, std::string_view label) {
      const std::string stream = formText(names, texts, label);
      if (!stream.empty()) list2_append_to_end(list, stream);
    };
    take(inlets(), inletLabel);
    take(exits(), exitLabel);
  }

  /// Takes the numbers of a form.
  void takeForm(std::span<const FormInRow<Data>> rows, const CStrList& names,
                const CStrList& texts) {
    for (const FormInRow<Data>& row : rows) {
      takeFormNumber(data().*row.field, names, texts, resolved(row.label), row.units, row.rule);
    }
  }

  /// Appends the numbers of a form that are not 0.
  void showForm(std::span<const FormOutRow<Data>> rows, CStrList& names, CStrList& texts) const {
    for (const FormOutRow<Data>& row : rows) {
      showFormNumber(names, texts, resolved(row.label), this->values().*row.field, row.internal,
                     unitType == 0 ? row.customary : row.metric);
    }
  }

  /// Writes results to the component record.
  void write(std::span<const ResultRow<Data>> rows) {
    for (const ResultRow<Data>& row : rows) {
      writeResult(resolved(row.slot), data().*row.field, row.when, row.style, row.internal,
                  row.customary, row.metric);
    }
  }

 private:
  struct State {
    Data data{};
    StreamLists streams{exitRelease};
    int firstRun = 1;
  };

  std::shared_ptr<State> state_ = std::make_shared<State>();
};

}  // namespace sizewright
