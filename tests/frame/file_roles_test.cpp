#include <gtest/gtest.h>

#include "frame/probe_item.h"
#include "frame/watched_plant.h"

namespace sizewright {
namespace {

struct RoleRow {
  const char* role;
  const char* slot;  // of the sizer options; null when no slot overrides the name
  FixedText<512> CSizeEquip::*file;
  const char* standard;
};

// Gives the rows access to the protected names.
struct Files : ProbeItem {
  static std::vector<RoleRow> rows() {
    return {
        {"utilities", "utility specifications file", &Files::utilFile, "UTILITY"},
        {"design criteria", "design criteria file", &Files::designFile, "DESIGN"},
        {"project information", "VPE project information file", &Files::vpeProjFile, "VPEPROJ"},
        {"mapped process objects", "VPE map process object file", &Files::vpeProcFile, "VPEPROC"},
        {"simulation data", "Simulation data file", &Files::procFile, "PROC"},
        {"sizing results", nullptr, &Files::sizeFile, "SIZE"},
        {"component records", nullptr, &Files::vpeCompFile, "VPECOMP"},
    };
  }
};

std::string plantWithOptions(const std::string& options) {
  return R"({"simulator": 1, "items": {"P-101": {"category": "DCP"}}, "databases": {"OTHER": {},
             "VPECOMP": {"VARDEX sizer options": )" +
         options + "}}}";
}

TEST(FileRoles, Without_sizer_options_every_role_has_its_standard_name) {
  WatchedPlant plant(R"({"items": {"P-101": {"category": "DCP"}}})");
  const auto item = plant.make<ProbeItem>("P-101");
  for (const RoleRow& row : Files::rows()) {
    EXPECT_EQ(((*item).*row.file).view(), row.standard) << row.role;
  }
}

TEST(FileRoles, A_slot_of_the_sizer_options_overrides_its_own_role_only) {
  for (const RoleRow& given : Files::rows()) {
    if (given.slot == nullptr) continue;
    WatchedPlant plant(plantWithOptions(std::string("{\"") + given.slot + "\": \"OTHER\"}"));
    const auto item = plant.make<ProbeItem>("P-101");
    EXPECT_EQ(item->isValid, 1) << given.role;
    for (const RoleRow& row : Files::rows()) {
      const bool overridden = row.slot == given.slot;
      EXPECT_EQ(((*item).*row.file).view(), overridden ? "OTHER" : row.standard)
          << row.role << " when " << given.role << " is given";
    }
  }
}

TEST(FileRoles, Sizer_options_that_say_nothing_leave_the_standard_names) {
  WatchedPlant plant(plantWithOptions(R"({"Source sub type": "NORMAL"})"));
  const auto item = plant.make<ProbeItem>("P-101");
  for (const RoleRow& row : Files::rows()) {
    EXPECT_EQ(((*item).*row.file).view(), row.standard) << row.role;
  }
}

TEST(FileRoles, Results_and_components_are_not_read_from_the_sizer_options) {
  WatchedPlant plant(plantWithOptions(R"({"SIZE": "OTHER", "VPECOMP": "OTHER",
    "sizing results file": "OTHER"})"));
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->sizeFile.view(), "SIZE");
  EXPECT_EQ(item->vpeCompFile.view(), "VPECOMP");
}

TEST(FileRoles, An_overriding_database_that_is_missing_is_reported_by_its_name) {
  WatchedPlant plant(plantWithOptions(R"({"utility specifications file": "NOWHERE"})"));
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->isValid, 0);
  EXPECT_EQ(plant.screen().prints,
            std::vector<std::string>{"Could not find <NOWHERE>. Please recreate project."});
  EXPECT_TRUE(item->sizeFile.empty());
}

TEST(FileRoles, The_fourth_text_names_the_results_database_with_and_without_options) {
  for (const std::string& text :
       {std::string(R"({"items": {"P-101": {"category": "DCP"}}})"), plantWithOptions("{}")}) {
    WatchedPlant plant(text);
    plant.select("P-101");
    const ProbeItem item(0, "", "", "", "RESULTS", "", nullptr, plant.host().project(),
                         plant.host().simCase());
    EXPECT_EQ(item.isValid, 1);
    EXPECT_EQ(item.sizeFile.view(), "RESULTS");
  }
}

TEST(FileRoles, The_second_text_names_the_component_database) {
  WatchedPlant plant(R"({"items": {"P-101": {}}, "databases": {"MYCOMP": {
    "equipment information": {"component name": "P-9", "category code": "EGP"},
    "P-9": {"object name": "P-101"}}}})");
  plant.select("P-101");
  const ProbeItem item(0, "", "MYCOMP", "", "", "", nullptr, plant.host().project(),
                       plant.host().simCase());
  EXPECT_EQ(item.isValid, 1);
  EXPECT_EQ(item.vpeCompFile.view(), "MYCOMP");
  EXPECT_EQ(item.componentName.view(), "P-9");
  EXPECT_EQ(item.categoryCode.view(), "EGP");
}

TEST(FileRoles, The_property_database_lies_under_the_registered_system_directory) {
  WatchedPlant plant(
      R"({"install": {"SystemCacheDir": "D:\\cache"}, "items": {"P-101": {"category": "DCP"}}})");
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->isValid, 1);
  EXPECT_EQ(item->pxpropFile.view(), "D:\\cache\\pxprop");
}

TEST(FileRoles, An_empty_system_directory_still_gives_a_path) {
  WatchedPlant plant(
      R"({"install": {"SystemCacheDir": "", "SourceDir": "D:\\source\\"}, "items": {"P-101": {"category": "DCP"}}})");
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->pxpropFile.view(), "\\pxprop");
}

TEST(FileRoles, A_system_directory_of_5000_characters_does_no_harm) {
  WatchedPlant plant(R"({"install": {"SystemCacheDir": ")" + std::string(5000, 'd') +
                     R"("}, "items": {"P-101": {"category": "DCP"}}})");
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_LT(item->pxpropFile.view().size(), 512U);
}

TEST(FileRoles, Database_names_of_5000_characters_do_no_harm) {
  const std::string name(5000, 'n');
  WatchedPlant plant(plantWithOptions(R"({"VPE map process object file": ")" + name +
                                      R"(", "utility specifications file": "OTHER"})"));
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->isValid, 1);
  EXPECT_EQ(item->vpeProcFile.view(), name.substr(0, 511));
}

}  // namespace
}  // namespace sizewright
