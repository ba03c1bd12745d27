#pragma once

#include <cstdio>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sizewright/frame/stream_values.h"
#include "sizewright/frame/tables.h"
#include "sizewright/host/criteria.h"
#include "sizewright/host/fixed_text.h"
#include "sizewright/host/objects.h"
#include "sizewright/host/string_list.h"

namespace sizewright {

/// Family of an item, told by its category code.
enum EQ_CAT_TYPE : int {
  EQ_CAT_NONE = 0,
  EQ_CAT_COMPRESSOR = 1,
  EQ_CAT_CRUSHER = 2,
  EQ_CAT_CRYSTALLIZER = 3,
  EQ_CAT_DUST_COLLECTOR = 4,
  EQ_CAT_DRYER = 5,
  EQ_CAT_FILTER = 6,
  EQ_CAT_FURNACE = 7,
  EQ_CAT_HEAT_EXCHANGER = 8,
  EQ_CAT_PLATE_FIN = 9,
  EQ_CAT_PUMP = 10,
  EQ_CAT_SCREEN = 11,
  EQ_CAT_TURBINE = 12,
  EQ_CAT_TOWER = 13,
  EQ_CAT_VESSEL = 14,
  EQ_CAT_MIXER = 15,
  EQ_CAT_SIMPLE = 16,
};

/// Family of a category code; `itemModel` decides within category "C".
EQ_CAT_TYPE equipmentCategory(std::string_view categoryCode, std::string_view itemModel);

/// Ends of an item that streams connect to.
enum Direction : int { kNoDirection = -1, kInlet = 1, kExit = 2 };

/// Base of every sizing object: one item of a project, driven through a small set of operations.
///
/// A host constructs an object of the item's equipment class in the design form, tests `IsValid`,
/// calls `Size`, `Commit` and `UpdateSizeInfo`, and deletes it; a user form takes `GetLastInfo`,
/// `ReturnValues` and `SetValues` before `Size`. The object works on the host attached to the
/// calling thread (`HostScope`), which must stay attached until the object is deleted. One object
/// belongs to one thread.
///
/// Unless said otherwise an operation returns 1 for success or found and 0 otherwise. Nothing
/// throws; what went wrong is a text in the message lists. Values are held in internal units (FEET,
/// CF, CFH, LB/H, PCF, PSI, DEG F, CPOISE, HP, BTU/H) and converted where they enter and leave. A
/// number at or below 0 means not given, a temperature only at exactly 0.
class CSizeEquip {
 public:
  /// Design form: full sizing of the item that the component database describes. `interactiveMode`
  /// 0 runs without dialogs. `projectFileName` and `sizeFileName` name the component and the
  /// results database, or are empty for the defaults; `mode` "Spreadsheet" suppresses reading of
  /// simulator blocks; `first` and `third` are kept and read by nothing. `window` owns message
  /// boxes. Project and case stay the host's; the case may be null.
  CSizeEquip(int interactiveMode, const char* first, const char* projectFileName, const char* third,
             const char* sizeFileName, const char* mode, void* window, CvdProject* hostProject,
             CvdSimCase* hostCase);
  /// Selection form: a look at a simulator block without component record. The last two texts are
  /// accepted and ignored.
  CSizeEquip(CvdProject* hostProject, CvdSimCase* hostCase, const char* blockName,
             const char* ignored1, const char* ignored2);
  /// Repeats the design initialisation with the other object's arguments, window, project and
  /// case, and opens the unit service.
  CSizeEquip(const CSizeEquip& other);
  /// Copies every member. Both objects then hold the same host records.
  CSizeEquip& operator=(const CSizeEquip& other);

  /// Releases the host records and closes the unit service.
  virtual ~CSizeEquip();

  /// 1 when the initialisation succeeded; with 0 the object may only be deleted.
  virtual int IsValid();
  /// Stores the four message lists on the project object; 0 without one.
  virtual int AddWarningAndError();
  /// Notes the item's streams for disconnection: the inlet as one it is the sink of, the exit as
  /// one it is the source of.
  virtual int GetConnectedStreams();
  /// `SaveParameters`, `UpdateConnectivity` and `AddWarningAndError`; the result is the last one's.
  virtual int Commit();
  /// Sizes the item.
  virtual int Size() = 0;
  /// Gathers what a form shows.
  virtual int GetLastInfo() = 0;
  /// Takes a form's labels and values; a label that is absent counts as cleared. 0 and nothing done
  /// for an empty form.
  virtual int SetValues(CStrList& names, CStrList& values) = 0;
  /// Replaces the lists by the labels and values of the form, in the project's units.
  virtual int ReturnValues(CStrList& names, CStrList& values) = 0;
  /// Finds the item's streams.
  virtual int GetStreamInfo();
  /// Copies the component record and the messages to the record of the SIZE database. 0 when the
  /// database is missing or the record cannot be written.
  virtual int UpdateSizeInfo();
  /// Rewrites the ports of the component record.
  virtual int UpdateConnectivity() = 0;
  // Hooks of the rating deck and its results; a class with a deck overrides them.
  virtual int hxthrx_info_general_ok(std::FILE* file, const char* addressFile, const char* block);
  /// Writes results to the component record.
  virtual int SaveParameters() = 0;
  virtual int hxthrx_get_results();
  virtual int hxthrx_info_geo_ok(std::FILE* file, const char* addressFile, const char* block);
  virtual int hxthrx_info_proc_ok(std::FILE* file, const char* addressFile);
  virtual int hxthrx_info_stre_ok(std::FILE* file, const char* addressFile);

  // --- Identity ---------------------------------------------------------------------------------

  /// The family that the item's category code tells.
  [[nodiscard]] EQ_CAT_TYPE GetEquipCatType() const;
  // Each copies a member into the caller's buffer: codes write at most 128 characters, file names
  // at most 512, terminator included.
  void GetCategoryCode(char* out) const;
  void GetItemCode(char* out) const;
  void GetUtilFile(char* out) const;
  void GetProcFile(char* out) const;
  void GetVpeCompFile(char* out) const;
  void GetVpeProjFile(char* out) const;
  [[nodiscard]] const char* GetItemModel() const { return itemModel.c_str(); }
  [[nodiscard]] const char* GetSimBlockName() const { return simBlockName.c_str(); }
  [[nodiscard]] VD_SIMULATOR_TYPE GetSimCounter() const { return simulatorType; }
  /// Each returns 0 and changes nothing for an empty text.
  int SetCategoryCode(const char* code);
  int SetItemCode(const char* code);
  /// Copies the item's model text without trailing blanks (at most 128 characters, terminator
  /// included); empty, and 0, without a project object.
  int getVdEquipFullCode(char* out) const;
  /// 0 in the calling context "Spreadsheet", in which a class reads no block information.
  [[nodiscard]] int GetProjObjectInfo() const;
  /// 1 when the simulator case holds a premapped item of that name.
  [[nodiscard]] int IsPremapType(const char* name) const;
  /// The same for a premapped tower, told by "-tower" in its name.
  [[nodiscard]] int IsPremapTower(const char* name) const;

  // The four message lists, an entry a line.
  [[nodiscard]] const CStrList& Warnings() const { return warnings; }
  [[nodiscard]] const CStrList& Errors() const { return errors; }
  [[nodiscard]] const CStrList& Calculations() const { return calculations; }
  [[nodiscard]] const CStrList& Notes() const { return notes; }

  // --- Reading ----------------------------------------------------------------------------------
  //
  // `files` and `objects` are names separated by line feeds. A search looks at each object first as
  // the item's own record or simulator block, then as a stream, then in each database; the first
  // valid slot ends it. The `_api` forms read from one object in hand. All of them look in what an
  // object inherits from, too, and return 0 for an empty slot name or an invalid object.

  /// The slot as text: lines joined by line feeds, a number cut to a whole one. `out` gets at most
  /// kSlotText characters. 1 when the text is not empty.
  int lib_get_value_c(std::string_view files, std::string_view objects, std::string_view slot,
                      char* out) const;
  int lib_get_value_c_api(CvdValueObject* object, std::string_view slot, char* out,
                          const char* ignored) const;
  /// The number as it stands. 0 also when it is exactly 0; `*out` is set in either case.
  int lib_get_value_n(std::string_view files, std::string_view objects, std::string_view slot,
                      double* out, const char* units) const;
  int lib_get_value_n_api(CvdValueObject* object, std::string_view slot, double* out,
                          const char* ignored) const;
  /// The number and its unit text (at most UnitText::kCapacity characters); a text slot gives its
  /// text as unit and leaves the number, a number without unit leaves the unit. 1 when the number
  /// is not 0 and the unit is not empty.
  int lib_get_number_and_units(std::string_view files, std::string_view objects,
                               std::string_view slot, double* out, char* unitsOut) const;
  int lib_get_number_and_units_api(CvdValueObject* object, std::string_view slot, double* out,
                                   char* unitsOut) const;
  /// The number in `targetUnits`; one without unit is taken to be in them. A text slot is read as
  /// the unit of what `*out` held before. 1 when the result is not 0.
  int lib_get_and_adjust(std::string_view files, std::string_view objects, std::string_view slot,
                         double* out, std::string_view targetUnits) const;
  int lib_get_and_adjust_api(CvdValueObject* object, std::string_view slot, double* out,
                             std::string_view targetUnits) const;

  /// All slots of the object in the first file that has it, as two new lists.
  int lib_lo_load_list2_all(std::string_view files, std::string_view object, void** names,
                            void** values) const;
  /// 1 when one of the files holds the object.
  int lib_obj_exists(std::string_view files, std::string_view object) const;
  /// A design criterion of the item's model, in `units`.
  int GetValueFromDesCriteria(const char* name, double& value, const char* units) const;
  int GetValueFromDesCriteria(const char* name, CriterionText& text) const;

  // --- Streams ----------------------------------------------------------------------------------

  /// Streams connected in `direction` under `tag`, or else named in `slot` of the item. Appends to
  /// `list` when connections are found; a stream named in a slot replaces the handle by a new list,
  /// which the caller deletes. Any direction but 1 and 2 reads the slot only.
  int GetStreams(int direction, std::string_view slot, std::string_view tag, void*& list) const;
  /// The same, appended to a string list.
  int GetStreams(int direction, std::string_view slot, std::string_view tag, CStrList& list) const;
  /// Class number of the stream, 0 when there is none.
  [[nodiscard]] int GetStreamID(std::string_view name) const;
  /// Type text (at most 64 characters with terminator) and class number of a stream. An unknown
  /// name counts as found when the caller passes a type and class in; they stay.
  int lib_stream_type(std::string_view name, char* typeOut, int& classOut) const;
  /// One slot of one stream; fails for any class but the four of streams.
  int lib_get_stream_val(std::string_view name, int classNumber, std::string_view slot,
                         CvdSlot& out) const;
  /// Name of the stream of the list with the greatest "TOTAL MASS FLOW" (at most 256 characters):
  /// the first of equals, empty when all are 0; left alone for an empty list.
  void lib_GetStreamWithMax_total_mass_flow(void* list, char* out) const;
  /// 1 when a connected stream of that direction has that name, trailing blanks aside.
  int lib_func_IsStreamInList(int direction, std::string_view name) const;

  // --- Text and numbers -------------------------------------------------------------------------

  /// Copies characters up to the delimiter or the end to `out`, which must hold them and a
  /// terminator, and moves the cursor past the delimiter. Returns the cursor.
  static const char* lib_func_get_str_upto_char(const char** cursor, char* out, char delimiter);
  /// Keeps the first line, without trailing blanks.
  static void TrimString(char* text);
  /// The library's power: exp(|y| x 2.302585093 x log10(x)), its reciprocal for a negative y. The
  /// constant has ten digits, so results differ from a true power in the last places. 1 for y = 0
  /// and for x = 1; 0 for x = 0 with a negative y; not a number for a negative x.
  static double compiler_pow_double(double x, double y);

  // --- Ports ------------------------------------------------------------------------------------
  //
  // A port is a slot of the component record: stream name, stream type text and connection tag, a
  // line each. The ports of a direction are listed in its connector slot.

  /// Appends the port names of a direction; 1 when there are any.
  int lib_func_get_connector_list(int direction, void* list) const;
  /// Deletes the connector slot; 0 when the object is invalid.
  int lib_func_delete_connectors(std::string_view file, std::string_view object, int direction);
  /// Writes a port for each stream, numbered from 1, and the connector slot. The first three
  /// arguments are accepted; the writing goes to the component record. Nothing for an empty list.
  int lib_func_add_new_ports(std::string_view file, std::string_view object,
                             std::string_view connectorSlot, void* streams, std::string_view tag,
                             std::string_view prefix, int direction);
  int lib_func_create_connector_slot(std::string_view portName, std::string_view stream,
                                     std::string_view tag);
  /// Adds one port under the first free number from 0.
  int lib_func_append_ports(std::string_view stream, std::string_view tag, std::string_view prefix,
                            int direction);
  /// Adds a port for each stream of a list.
  int lib_func_append_ports(std::string_view file, std::string_view object,
                            std::string_view connectorSlot, void* streams, std::string_view tag,
                            std::string_view prefix, int direction);
  /// Removes all ports of a direction and the connector slot.
  int lib_fun_delete_old_ports(std::string_view file, std::string_view object, int direction);
  /// The three lines of a port, each at most 256 characters with terminator; left alone when the
  /// object is invalid or has no such port.
  void lib_func_get_conn_str_prop(std::string_view file, std::string_view object,
                                  std::string_view port, char* stream, char* type, char* tag) const;
  /// Appends the streams connected under a tag, each once; an empty tag matches every port. A null
  /// `*list` becomes a new list. Returns the number of streams in the list.
  int lib_func_obtain_streams_from_connections(int direction, std::string_view tag,
                                               void** list) const;
  /// Writes the connector slot; 0 for an empty list.
  int lib_func_write_connector_list(void* ports, int direction);
  /// Records that a stream was added (1), changed (2) or deleted (3), where the project records
  /// changes.
  int AddStreamToList(std::string_view stream, int kind);
  /// Notes a stream for disconnection at that end; 1 when added.
  int AppendStreamToSourceList(std::string_view stream);
  int AppendStreamToSinkList(std::string_view stream);
  /// Cuts the noted streams loose.
  int DisconnectStreams();
  int DisconnectOneStream(std::string_view stream, unsigned long classNumber, int atSource,
                          int atSink);

  // --- Results ----------------------------------------------------------------------------------

  /// Appends a report of labels and values to a text file, last row first; rows without a value are
  /// left out. Nothing is written when the lists differ in length.
  static void WriteToFile(const char* path, void* names, void* values);
  /// The slot that the item's category uses for a generic quantity (`out` gets at most 64
  /// characters). 0 for an unknown quantity, which gives the gas flow slot.
  int GetNewSlotNameField(std::string_view generic, char* out) const;
  /// Mode 0 stores the text in a slot of the component record, mode 1 shows it. Returns 1.
  int lib_func_write_msg(const char* ignored1, const char* ignored2, const char* slot,
                         const char* text, int mode);

  // --- Line velocity ----------------------------------------------------------------------------

  /// Design velocity (FT/S) of a liquid line from the velocity table of the property database, for
  /// a mass flow in LB/H and a density in PCF: that of the next flow of the table.
  int GetDesignVelocityForLiquid(double massFlow, double density, double& velocity) const;
  /// Design velocity (FT/S) of a gas line: a log-log line from 30 at 100000 LB/H to 100 at
  /// 10000000 LB/H, held at the ends. Left alone without a density. 1 when positive.
  static int GetDesignVelocityForGas(double massFlow, double density, double& velocity);
  static int GetDesignVelocityForSlurry() { return 1; }
  static int GetDesignVelocityForSteam() { return 1; }

 protected:
  /// Base record of the item's simulator block; 1 when there is one.
  int SetBaseObject();
  int ObtainDesignVelocity(const char* table, double flow, double& velocity) const;
  void szInitialize();
  void szTerminate();

  // --- Mechanics that every class shares --------------------------------------------------------

  /// The slot for a generic quantity, as `GetNewSlotNameField` tells.
  [[nodiscard]] FixedText<64> slotFor(std::string_view quantity) const;
  [[nodiscard]] FixedText<64> resolved(const SlotName& name) const;
  /// The item code is one of these, case and surrounding blanks aside.
  [[nodiscard]] bool itemIs(std::initializer_list<std::string_view> codes) const;
  /// The category code is one of these, case aside.
  [[nodiscard]] bool categoryIs(std::initializer_list<std::string_view> codes) const;

  /// Adds a text to a list, a line an entry.
  static void tell(CStrList& list, std::string_view text);
  /// Shows a text in a message box, unless dialogs are off.
  void showBox(std::string_view text, int flags) const;
  /// Shows a plain text, unless dialogs are off.
  void showText(std::string_view text) const;
  /// A warning, also shown in a box.
  void warn(std::string_view text);
  /// An error, also shown as plain text.
  void fail(std::string_view text);

  /// The object of a source row; null when the item has none.
  [[nodiscard]] CvdValueObject* source(From from) const;
  /// Reads a field that is not positive; it stays when nothing is found. Without units the number
  /// is taken as it stands.
  void readSource(double& field, From from, std::string_view slot, const char* units,
                  Lookup lookup = Lookup::inherited) const;
  /// Reads a count while it is not above 1; a slot's number counts when it is greater.
  void readCount(double& count, From from, std::string_view slot) const;
  /// The slot's number in `units` (null: as it stands), or `missing` when it is absent or 0.
  double readOr(CvdValueObject* object, std::string_view slot, const char* units,
                double missing) const;
  /// The same for a value whose 0 or negative values are valid: the sentinel stands in the variable
  /// before the read and after a failed one.
  double readSentinel(CvdValueObject* object, std::string_view slot, const char* units,
                      double sentinel) const;
  /// The component's slot or, while that gives the sentinel, the simulator block's.
  double readComponentOrBlock(std::string_view componentSlot, std::string_view blockSlot,
                              const char* units, double sentinel) const;
  /// The project allows the item to be resized; true unless "CpAllowResize" is "No".
  [[nodiscard]] bool allowsResize() const;

  /// The stream of that name, of the first class that has it.
  [[nodiscard]] std::optional<CvdStream> openStream(std::string_view name) const;
  /// The streams of a list that can be opened, in its order.
  [[nodiscard]] std::vector<NamedStream> openStreams(void* list) const;
  /// Design pressure (PSI) and temperature (DEG F) of the project object, each where it is given.
  /// True when both are.
  bool readDesignConditions(double& pressure, double& temperature) const;

  /// Makes the list if there is none and, when it is empty, fills it with the item's streams.
  void findStreams(void*& list, Direction direction, std::string_view slot,
                   std::string_view tag) const;
  /// The same for exits that may be connected under several tags: all of them, in the order of the
  /// tags, or else those that the slot "Exit stream" names.
  void findExits(void*& list, std::initializer_list<std::string_view> tags) const;
  /// Removes a direction's ports and writes new ones for the list; nothing for a null list.
  void rewritePorts(Direction direction, void* list, std::string_view tag, std::string_view prefix);
  /// The same for exits, each under the tag of the first row whose flow it carries, or "OUTLET".
  void rewriteExitPorts(void* list, std::span<const PortByFlow> rows);
  /// The same for the exits of a gas machine: under "OUTLET" with vapor and under "DRAIN" without;
  /// a stream that cannot be opened gets no port.
  void rewriteGasExitPorts(void* list);

  /// Adds the first stream of a list to a form. Where there are several, that of the greatest mass
  /// flow takes the first place, and the user is told by `dialog`, a format for its name.
  void showStream(std::string_view label, void* list, const char* dialog, CStrList& names,
                  CStrList& values) const;
  /// A form's number for a field, by the rule of its row.
  static void takeFormNumber(double& field, const CStrList& names, const CStrList& values,
                             std::string_view label, const char* units, FormRule rule);
  /// A form's text, or an empty one.
  static std::string formText(const CStrList& names, const CStrList& values,
                              std::string_view label);
  /// Adds a number, given in `internal`, to a form; one of exactly 0 is left out.
  static void showFormNumber(CStrList& names, CStrList& values, std::string_view label,
                             double number, const char* internal, const char* shown);

  /// Writes a pressure, given in PSI, to a slot of gauge pressure.
  void writeGaugePressure(std::string_view slot, double pressure);
  /// Writes a result to the component record, by its row.
  void writeResult(std::string_view slot, double value, When when, Style style,
                   const char* internal, const char* customary, const char* metric);

  int isValid = 0;
  int interactive = 0;
  FixedText<100> argFirst;        // read by nothing
  FixedText<100> argProjectFile;  // name of the component database
  FixedText<100> argThird;        // read by nothing
  FixedText<100> argSizeFile;     // name of the results database
  FixedText<100> argMode;         // calling context
  FixedText<512> reservedFile;    // read by nothing
  FixedText<512> utilFile;
  FixedText<512> designFile;
  FixedText<512> vpeProcFile;
  FixedText<512> vpeProjFile;
  FixedText<512> procFile;
  FixedText<512> vpeCompFile;
  FixedText<512> pxpropFile;  // full path of the property database
  FixedText<512> sizeFile;
  FixedText<128> categoryCode;
  FixedText<128> componentName;  // name of the item's record
  FixedText<128> itemCode;
  FixedText<128> equipFullCode;  // model text, key of the design criteria
  FixedText<128> projectComponentName;
  FixedText<128> simBlockName;
  FixedText<128> itemModel;

  std::shared_ptr<CvdGenericObject> component;      // the item's record
  std::shared_ptr<CvdSimCaseObject> simObject;      // the simulator block, may be null
  std::shared_ptr<CvdProjectObject> projectObject;  // the project's view, may be null
  CvdProject* project = nullptr;                    // the host's
  CvdSimCase* simCase = nullptr;                    // the host's, may be null
  unsigned projectId = 0;
  void* parentWindow = nullptr;
  int noDialogs = 0;
  VD_SIMULATOR_TYPE simulatorType = 0;
  int warningSlotCount = 0;
  int unitType = 0;  // 0 customary, otherwise metric

  CStrList warnings;      // what the user should check; the run goes on
  CStrList errors;        // what stops a result
  CStrList calculations;  // a trace of formulas and values
  CStrList notes;         // remarks
  CStrList sourceList;    // streams to disconnect at their source
  CStrList sinkList;      // streams to disconnect at their sink

 private:
  int size_init_set(int interactiveMode, const char* first, const char* projectFileName,
                    const char* third, const char* sizeFileName, const char* mode, void* window,
                    CvdProject* hostProject, CvdSimCase* hostCase);
  int size_init_set(CvdProject* hostProject, CvdSimCase* hostCase, const char* blockName,
                    const char* ignored1, const char* ignored2);
  void size_init_set_args(const char* first, const char* projectFileName, const char* third,
                          const char* sizeFileName, const char* mode);
  int size_init_set_pxprop_file_name();
  int size_init_set_pxproj_file_name();
  int size_init_set_project_files();
  void useDefaultFileNames();
  int openItemRecords();
  void openBlock();
  void readItemModel();
  int lib_st_prop_get_info_from_list(std::string_view slot, void** list) const;

  int appendWithClass(CStrList& list, std::string_view stream) const;

  [[nodiscard]] CvdSlot search(std::string_view files, std::string_view objects,
                               std::string_view slot) const;
};

}  // namespace sizewright
