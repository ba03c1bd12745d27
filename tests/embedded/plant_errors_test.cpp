#include <gtest/gtest.h>

#include <random>

#include "embedded/plant_texts.h"

namespace sizewright {
namespace {

struct Fault {
  std::string_view name;  // of the case
  std::string_view text;  // plant file
  std::string_view message;
};

class PlantFaults : public ::testing::TestWithParam<Fault> {};

TEST_P(PlantFaults, Is_told_with_its_place) {
  EXPECT_EQ(plantFault(GetParam().text), GetParam().message);
}

std::string caseName(const ::testing::TestParamInfo<Fault>& info) {
  return std::string(info.param.name);
}

// --- Shape --------------------------------------------------------------------------------------

INSTANTIATE_TEST_SUITE_P(
    Shape, PlantFaults,
    ::testing::Values(Fault{"number", "5", "expected an object"},
                      Fault{"list", "[{}]", "expected an object"},
                      Fault{"no_items", "{}", "missing key \"items\""},
                      Fault{"unknown_key", R"({"items": {}, "item": {}})", "item: unknown key"},
                      Fault{"capital_x", R"({"items": {}, "X-a": 1})", "X-a: unknown key"},
                      Fault{"items_list", R"({"items": []})", "items: expected an object"},
                      Fault{"items_null", R"({"items": null})", "items: expected an object"},
                      Fault{"streams_text", R"({"items": {}, "streams": "S"})",
                            "streams: expected an object"},
                      Fault{"version_2", R"({"sizewright": 2, "items": {}})",
                            "sizewright: version 2 of the format; this program reads version 1"},
                      Fault{"version_text", R"({"sizewright": "1", "items": {}})",
                            "sizewright: expected 1, got \"1\""},
                      Fault{"name", R"({"name": 5, "items": {}})", "name: expected a text, got 5"},
                      Fault{"units", R"({"units": "imperial", "items": {}})",
                            "units: expected \"customary\" or \"metric\", got \"imperial\""},
                      Fault{"units_case", R"({"units": "Metric", "items": {}})",
                            "units: expected \"customary\" or \"metric\", got \"Metric\""},
                      Fault{"simulator_negative", R"({"simulator": -1, "items": {}})",
                            "simulator: expected a whole number from 0 up, got -1"},
                      Fault{"simulator_fraction", R"({"simulator": 1.5, "items": {}})",
                            "simulator: expected a whole number from 0 up, got 1.5"},
                      Fault{"simulator_large", R"({"simulator": 99999999999, "items": {}})",
                            "simulator: expected a whole number from 0 up, got 99999999999"},
                      Fault{"record_changes", R"({"record changes": 1, "items": {}})",
                            "record changes: expected true or false, got 1"},
                      Fault{"defaults", R"({"defaults": null, "items": {}})",
                            "defaults: expected true or false, got null"},
                      Fault{"install_key", R"({"install": {"Other": "x"}, "items": {}})",
                            "install/Other: unknown key"},
                      Fault{"install_value", R"({"install": {"SourceDir": 5}, "items": {}})",
                            "install/SourceDir: expected a text or null, got 5"}),
    caseName);

INSTANTIATE_TEST_SUITE_P(
    Slots, PlantFaults,
    ::testing::Values(
        Fault{"boolean", R"({"items": {"P": {"component": {"A": true}}}})",
              "items/P/component/A: expected a number, a text, a number with its unit or a list of "
              "texts, got true"},
        Fault{"null", R"({"streams": {"S": {"slots": {"A": null}}}, "items": {}})",
              "streams/S/slots/A: expected a number, a text, a number with its unit or a list of "
              "texts, got null"},
        Fault{"object", R"({"criteria": {"*": {"A": {}}}, "items": {}})",
              "criteria/*/A: expected a number, a text, a number with its unit or a list of texts"},
        Fault{"number_alone", R"({"utilities": {"U": {"A": [5]}}, "items": {}})",
              "utilities/U/A: expected a number, a text, a number with its unit or a list of "
              "texts"},
        Fault{"three_parts", R"({"blocks": {"B": {"slots": {"A": [5, "PSI", "x"]}}}, "items": {}})",
              "blocks/B/slots/A: expected a number, a text, a number with its unit or a list of "
              "texts"},
        Fault{"mixed_list", R"({"items": {"P": {"project": {"A": ["x", 5]}}}})",
              "items/P/project/A: expected a number, a text, a number with its unit or a list of "
              "texts"},
        Fault{"unit_number", R"({"databases": {"D": {"O": {"A": [5, 6]}}}, "items": {}})",
              "databases/D/O/A: expected a number, a text, a number with its unit or a list of "
              "texts"}),
    caseName);

INSTANTIATE_TEST_SUITE_P(
    Items, PlantFaults,
    ::testing::Values(
        Fault{"exits", R"({"items": {"P-101": {"exits": ["S2"]}}})",
              "items/P-101/exits: expected an object"},
        Fault{"exits_number", R"({"items": {"P-101": {"exits": 5}}})",
              "items/P-101/exits: expected an object"},
        Fault{"exit_text", R"({"items": {"P-101": {"exits": {"OUTLET": "S2"}}}})",
              "items/P-101/exits/OUTLET: expected a list of stream names"},
        Fault{"exit_number", R"({"items": {"P-101": {"exits": {"OUTLET": ["S2", 5]}}}})",
              "items/P-101/exits/OUTLET/1: expected a stream name, got 5"},
        Fault{"exit_empty", R"({"items": {"P-101": {"inlets": {"INLET": [""]}}}})",
              "items/P-101/inlets/INLET/0: expected a stream name, got \"\""},
        Fault{"unknown_key", R"({"items": {"P-101": {"outlets": {}}}})",
              "items/P-101/outlets: unknown key"},
        Fault{"null", R"({"items": {"P-101": null}})", "items/P-101: expected an object"},
        Fault{"category", R"({"items": {"P-101": {"category": 5}}})",
              "items/P-101/category: expected a text, got 5"},
        Fault{"block_number", R"({"items": {"P-101": {"block": 5}}})",
              "items/P-101/block: expected a block name or a list of block names, got 5"},
        Fault{"block_list", R"({"items": {"P-101": {"block": ["B", ""]}}})",
              "items/P-101/block/1: expected a name, got \"\""},
        Fault{"unknown_block", R"({"items": {"P-101": {"block": "B"}}})",
              "items/P-101/block: no block is named \"B\""},
        Fault{"unknown_class", R"({"items": {"P-101": {"class": "cmultitwobj"}}})",
              "items/P-101/class: no sizing class is named \"cmultitwobj\""},
        Fault{"empty_class", R"({"items": {"P-101": {"class": ""}}})",
              "items/P-101/class: no sizing class is named \"\""},
        Fault{"project", R"({"items": {"P-101": {"project": 5}}})",
              "items/P-101/project: expected an object or null"},
        Fault{"reserved", R"({"items": {"Equipment Information": {}}})",
              "items/Equipment Information: reserved name"},
        Fault{"component_twice",
              R"({"items": {"P": {}}, "databases": {"vpecomp": {"p": {"A": 1}}}})",
              "databases/vpecomp/p: the item of this name keeps these slots as its \"component\""},
        Fault{"component_before",
              R"({"databases": {"VPECOMP": {"p": {"A": 1}}}, "items": {"P": {}}})",
              "databases/VPECOMP/P: the item of this name keeps these slots as its \"component\""}),
    caseName);

INSTANTIATE_TEST_SUITE_P(
    Sections, PlantFaults,
    ::testing::Values(
        Fault{"stream_class", R"({"streams": {"S": {"class": 3006}}, "items": {}})",
              "streams/S/class: expected 3005, 3105, 3205 or 3305, got 3006"},
        Fault{"stream_key", R"({"streams": {"S": {"TEMPERATURE": 5}}, "items": {}})",
              "streams/S/TEMPERATURE: unknown key"},
        Fault{"display", R"({"streams": {"S": {"display": ["a"]}}, "items": {}})",
              "streams/S/display: expected a text"},
        Fault{"block_class", R"({"blocks": {"B": {"class": "405"}}, "items": {}})",
              "blocks/B/class: expected 405 or 505, got \"405\""},
        Fault{"inherits_number", R"({"blocks": {"B": {"inherits": 5}}, "items": {}})",
              "blocks/B/inherits: expected a name, got 5"},
        Fault{"database_list", R"({"databases": {"D": []}, "items": {}})",
              "databases/D: expected an object"},
        Fault{"object_text", R"({"databases": {"D": {"O": "x"}}, "items": {}})",
              "databases/D/O: expected an object"},
        Fault{"inherits_spelling", R"({"databases": {"D": {"O": {"Inherits": "Q"}}}, "items": {}})",
              "databases/D/O/Inherits: no name for a slot here"},
        Fault{"overlay", R"({"property database": {"O": 5}, "items": {}})",
              "property database/O: expected an object or null"},
        Fault{"overlay_slot", R"({"property database": {"O": {"A": true}}, "items": {}})",
              "property database/O/A: expected a number, a text, a number with its unit, a list of "
              "texts or null, got true"},
        Fault{"rule_key", R"({"design rules": {"volume": []}, "items": {}})",
              "design rules/volume: unknown key"},
        Fault{"rule_row", R"({"design rules": {"pressure": [{}, {"form": 1}]}, "items": {}})",
              "design rules/pressure/1/form: unknown key"},
        Fault{"rule_value", R"({"design rules": {"pressure": [{"from": "0"}]}, "items": {}})",
              "design rules/pressure/0/from: expected a number, got \"0\""},
        Fault{"fluid_key", R"({"fluids": {"F": {"boiling": 5}}, "items": {}})",
              "fluids/F/boiling: unknown key"},
        Fault{"fluid_pair", R"({"fluids": {"F": {"gas viscosity": [1, 2, 3]}}, "items": {}})",
              "fluids/F/gas viscosity: expected a list of two numbers"},
        Fault{"chart_key", R"({"charts": {"O": {"V": {"x": [1], "y": [1]}}}, "items": {}})",
              "charts/O/V: missing key \"z\""},
        Fault{"chart_empty",
              R"({"charts": {"O": {"V": {"x": [], "y": [1], "z": [[1]]}}}, "items": {}})",
              "charts/O/V/x: expected a list of numbers"},
        Fault{"chart_text",
              R"({"charts": {"O": {"V": {"x": [1], "y": [1], "z": [["a"]]}}}, "items": {}})",
              "charts/O/V/z/0/0: expected a number, got \"a\""},
        Fault{
            "chart_size",
            R"({"charts": {"O": {"V": {"x": [1, 2], "y": [1], "z": [[1], [2, 3]]}}}, "items": {}})",
            "charts/O/V/z: expected 2 lists of 1 numbers"},
        Fault{"chart_order",
              R"({"charts": {"O": {"V": {"x": [2, 2], "y": [1], "z": [[1], [2]]}}}, "items": {}})",
              "charts/O/V/x: expected ascending numbers"},
        Fault{"chart_logarithm",
              R"({"charts": {"O": {"V": {"x": [1], "y": [0, 1], "z": [[1, 2]]}}}, "items": {}})",
              "charts/O/V/y: expected numbers above 0"}),
    caseName);

INSTANTIATE_TEST_SUITE_P(
    References, PlantFaults,
    ::testing::Values(
        Fault{"block", R"({"blocks": {"A": {"inherits": "B"}}, "items": {}})",
              "blocks/A/inherits: no block is named \"B\""},
        Fault{"object", R"({"databases": {"D": {"A": {"inherits": "B"}}, "E": {"B": {}}},
                            "items": {}})",
              "databases/D/A/inherits: no object is named \"B\""},
        Fault{"itself", R"({"blocks": {"A": {"inherits": "a"}}, "items": {}})",
              "blocks/A/inherits: cycle: A -> A"},
        Fault{"cycle", R"({"databases": {"D": {"A": {"inherits": "B"}, "B": {"inherits": "C"},
                           "C": {"inherits": "A"}}}, "items": {}})",
              "databases/D/A/inherits: cycle: A -> B -> C -> A"},
        Fault{"into_a_cycle", R"({"blocks": {"A": {"inherits": "B"}, "B": {"inherits": "C"},
                                  "C": {"class": 505, "inherits": "B"}}, "items": {}})",
              "blocks/A/inherits: cycle: A -> B -> C -> B"}),
    caseName);

INSTANTIATE_TEST_SUITE_P(
    Names, PlantFaults,
    ::testing::Values(
        Fault{"member_twice", R"({"items": {}, "name": "a", "name": "a"})", "name: duplicate key"},
        Fault{"section_twice", R"({"items": {"P": {}}, "items": {"Q": {}}})",
              "items: duplicate key"},
        Fault{"item_twice", R"({"items": {"P-1": {}, "P-2": {}, "P-1": {}}})",
              "items/P-1: duplicate key"},
        Fault{"item_case", R"({"items": {"P-1": {}, "p-1": {}}})", "items/p-1: duplicate key"},
        Fault{"stream_case", R"({"streams": {"S1": {}, "s1": {"class": 3105}}, "items": {}})",
              "streams/s1: duplicate key"},
        Fault{"slot_case",
              R"({"streams": {"S": {"slots": {"T": 1, "P": 2, "t": 3}}}, "items": {}})",
              "streams/S/slots/t: duplicate key"},
        Fault{"tag_case", R"({"items": {"P": {"inlets": {"In": ["S"], "IN": ["T"]}}}})",
              "items/P/inlets/IN: duplicate key"},
        Fault{"database_case", R"({"databases": {"D": {}, "d": {}}, "items": {}})",
              "databases/d: duplicate key"},
        Fault{"object_case", R"({"databases": {"D": {"O": {}, "o": {}}}, "items": {}})",
              "databases/D/o: duplicate key"},
        Fault{"key_of_item", R"({"items": {"P": {"category": "A", "category": "B"}}})",
              "items/P/category: duplicate key"},
        Fault{"fluid_blanks", R"({"fluids": {"Water": {}, " Water": {}}, "items": {}})",
              "fluids/ Water: duplicate key"},
        Fault{"extra_twice", R"({"items": {}, "x-a": {"b": 1, "b": 2}})", "x-a/b: duplicate key"},
        Fault{"empty_item", R"({"items": {"": {}}})", "items: empty name"},
        Fault{"empty_slot", R"({"items": {"P": {"component": {"A": 1, "": 2}}}})",
              "items/P/component: empty name"},
        Fault{"empty_member", R"({"items": {}, "": 1})", "empty name"},
        Fault{"line_feed", R"({"items": {"P\n1": {}}})", "items/P?1: control character in a name"},
        Fault{"null_character", R"({"streams": {"S\u0000": {}}, "items": {}})",
              "streams/S?: control character in a name"},
        Fault{"stream_reference", R"({"items": {"P": {"inlets": {"I": ["S\n1"]}}}})",
              "items/P/inlets/I: control character in a name"}),
    caseName);

TEST(PlantFault, Names_in_other_case_are_found_among_many) {
  std::string text = R"({"items": {"P": {"component": {)";
  for (int i = 0; i < 1000; ++i) text += "\"slot " + std::to_string(i) + "\": 1, ";
  EXPECT_EQ(plantFault(text + R"("Slot 7": 2}}}})"), "items/P/component/Slot 7: duplicate key");
  EXPECT_EQ(plantFault(text + R"("slot x": 2}}}})"), "");
}

TEST(PlantFault, Names_have_a_greatest_length) {
  const auto withName = [](std::string_view section, std::size_t length) {
    const std::string rest = section == "items" ? "}" : R"(, "items": {}})";
    return "{\"" + std::string(section) + "\": {\"" + std::string(length, 'n') + "\": {}}" + rest;
  };
  EXPECT_EQ(plantFault(withName("items", 127)), "");
  EXPECT_EQ(plantFault(withName("blocks", 127)), "");
  EXPECT_EQ(plantFault(withName("streams", 255)), "");
  const std::string cut = std::string(57, 'n') + "...";
  EXPECT_EQ(plantFault(withName("items", 128)), "items/" + cut + ": name longer than 127 bytes");
  EXPECT_EQ(plantFault(withName("blocks", 128)), "blocks/" + cut + ": name longer than 127 bytes");
  EXPECT_EQ(plantFault(withName("streams", 256)),
            "streams/" + cut + ": name longer than 255 bytes");
  EXPECT_EQ(plantFault(R"({"items": {"P": {"exits": {"O": [")" + std::string(256, 'n') + "\"]}}}}"),
            "items/P/exits/O: name longer than 255 bytes");
}

TEST(PlantFault, A_chain_longer_than_the_store_looks_through_is_refused) {
  std::string text = R"({"items": {}, "databases": {"D": {"o0": {})";
  for (int i = 1; i <= MemoryStore::kInheritanceDepth; ++i) {
    text += ", \"o" + std::to_string(i) + R"(": {"inherits": "o)" + std::to_string(i - 1) + "\"}";
  }
  EXPECT_EQ(plantFault(text + "}}}"), "databases/D/o64/inherits: a chain of more than 64 objects");
}

// --- Text that is no JSON -----------------------------------------------------------------------

INSTANTIATE_TEST_SUITE_P(
    Json, PlantFaults,
    ::testing::Values(
        Fault{"empty", "",
              "line 1, column 1: not JSON: unexpected end of input; expected '[', "
              "'{', or a literal"},
        Fault{"word", "plant", "line 1, column 1: not JSON: invalid literal"},
        Fault{"truncated", "{\n  \"items\": {\n    \"P\": {",
              "line 3, column 11: not JSON: unexpected end of input; expected string literal"},
        Fault{"comma", "{\"items\": {},\n}",
              "line 2, column 1: not JSON: unexpected '}'; expected string literal"},
        Fault{"trailing", "{\"items\": {}}\n{}",
              "line 2, column 1: not JSON: unexpected '{'; expected end of input"},
        Fault{"quote", "{\"items\": {\"P",
              "line 1, column 14: not JSON: invalid string: missing "
              "closing quote"},
        Fault{"utf8", "{\"name\": \"\xC3(\", \"items\": {}}",
              "line 1, column 12: not JSON: invalid string: ill-formed UTF-8 byte"},
        Fault{"nan", "{\"items\": {\"P\": {\"component\": {\"A\": NaN}}}}",
              "line 1, column 37: not JSON: invalid literal"},
        Fault{"overflow",
              R"({"items": {"P": {"component": {"A": [1, "x"], "B": [1e999, "PSI"]}}}})",
              "items/P/component/B/0: number out of range: 1e999"},
        Fault{"overflow_outside", R"({"simulator": -1e400, "items": {}})",
              "simulator: number out of range: -1e400"}),
    caseName);

TEST(PlantFault, A_null_character_does_not_end_the_text) {
  EXPECT_EQ(plantFault(std::string_view("{\"items\": {}}\n\0x", 16)),
            "line 2, column 1: not JSON: null character");
}

TEST(PlantFault, A_byte_order_mark_is_no_fault) {
  EXPECT_EQ(plantFault("\xEF\xBB\xBF{\"items\": {}}"), "");
}

TEST(PlantFault, Deep_nesting_is_refused) {
  const auto nested = [](std::size_t depth) {
    return "{\"items\": {}, \"x-deep\": " + std::string(depth, '[') + std::string(depth, ']') + "}";
  };
  EXPECT_EQ(plantFault(nested(31)), "");  // the document itself is a level
  EXPECT_NE(plantFault(nested(32)).find("nested deeper than 32 levels"), std::string::npos);
  const std::string message = plantFault("{\"items\": " + std::string(1000000, '{'));
  EXPECT_NE(message.find("not JSON"), std::string::npos) << message;
  EXPECT_NE(plantFault(std::string(1000000, '[')).find("expected an object"), std::string::npos);
  std::string objects = "{\"items\": {}, \"x-deep\": ";
  for (int i = 0; i < 100000; ++i) objects += "{\"a\":";
  EXPECT_NE(plantFault(objects).find("nested deeper than 32 levels"), std::string::npos);
}

TEST(PlantFault, Too_many_values_in_one_entry_are_refused) {
  std::string list = "{\"items\": {}, \"x-long\": [0";
  for (int i = 0; i < 1000000; ++i) list += ",0";
  EXPECT_EQ(plantFault(list + "]}"), "x-long: more than 1000000 values");
  std::string lines = "{\"items\": {\"P\": {\"component\": {\"A\": \"";
  for (int i = 0; i < 1000001; ++i) lines += "\\n";
  EXPECT_EQ(plantFault(lines + "\"}}}}"), "items/P: more than 1000000 values");
}

TEST(PlantFault, Messages_stay_short_whatever_the_text) {
  const std::string large(10000000, 'w');
  const std::string texts[] = {
      "{\"items\": {\"" + large + "\": 5}}",
      "{\"items\": {\"P\": {\"class\": \"" + large + "\"}}}",
      "{\"units\": \"" + large + "\", \"items\": {}}",
      "{\"items\": {}, \"" + large + "\": 1}",
      "{\"items\": \"" + large,
      large,
      "{\"items\": {\"P\": {\"component\": {\"A\": 1" + std::string(1000000, '0') + "}}}}",
  };
  for (const std::string& text : texts) {
    const std::string message = plantFault(text);
    EXPECT_FALSE(message.empty());
    EXPECT_LT(message.size(), 300U);
    EXPECT_EQ(message.find('\n'), std::string::npos);
  }
}

TEST(PlantFault, A_long_text_is_a_value_like_any_other) {
  const std::string large(10000000, 'w');
  const auto plant = plantOf("{\"items\": {\"P\": {\"component\": {\"A\": \"" + large + "\"}}}}");
  EXPECT_EQ(slotText(*plant, "VPECOMP", "P", "A").size(), large.size());
}

// --- Files --------------------------------------------------------------------------------------

std::string fileFault(const std::filesystem::path& path) {
  return faultOf(path.string(), [&path] { readPlantFile(path, kTestClasses); });
}

TEST(PlantFileFault, A_file_that_cannot_be_read_is_told_by_its_path) {
  const TestFolder folder;
  EXPECT_EQ(fileFault(folder.at("none.json")), "no such file");
  EXPECT_EQ(fileFault(folder.at("")), "is a directory");
  const auto path = folder.write("plant.json", "{\"items\": {\"P\": 5}}");
  EXPECT_EQ(fileFault(path), "items/P: expected an object");
  EXPECT_EQ(fileFault(path / "below"), "cannot be read: Not a directory");
}

TEST(PlantFileFault, A_file_without_permission_is_told_by_its_path) {
  const TestFolder folder;
  const auto path = folder.write("plant.json", "{\"items\": {}}");
  std::filesystem::permissions(path, std::filesystem::perms::none);
  const AsOrdinaryUser ordinary;
  EXPECT_EQ(fileFault(path), "cannot be read: Permission denied");
}

TEST(PlantFileFault, A_stream_is_read_like_a_file) {
  std::istringstream good("{\"items\": {\"P\": {}}}");
  EXPECT_EQ(readPlant(good, "input", kTestClasses)->items.size(), 1U);
  std::istringstream bad("{\"items\": 5}");
  EXPECT_EQ(faultOf("input", [&bad] { readPlant(bad, "input", kTestClasses); }),
            "items: expected an object");
}

// --- Anything at all ----------------------------------------------------------------------------

// Whatever comes, it is a plant that is written and read back, or one line of fault.
void expectPlantOrFault(const std::string& text) {
  std::unique_ptr<Plant> plant;
  try {
    plant = plantOf(text);
  } catch (const InputError& fault) {
    const std::string_view message = fault.what();
    EXPECT_TRUE(message.starts_with("plant.json: ")) << message;
    EXPECT_EQ(message.find('\n'), std::string::npos) << message;
    EXPECT_LT(message.size(), 3000U);
    return;
  }
  const std::string once = written(*plant);
  EXPECT_EQ(plantFault(once), "") << text;
  EXPECT_EQ(written(*plantOf(once)), once) << text;
}

TEST(PlantFuzz, Changed_bytes_give_a_plant_or_a_fault) {
  std::mt19937 random(20240611);
  const auto below = [&random](std::size_t end) {
    return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
  };
  constexpr std::string_view kBytes = "{}[]\",:0123456789eE+-.\\nulltruefalse PSI\n\xC3\xA4\x01";
  for (int round = 0; round < 3000; ++round) {
    std::string text(kEveryKey);
    for (std::size_t changes = 1 + below(4); changes > 0; --changes) {
      const std::size_t place = below(text.size());
      switch (below(3)) {
        case 0:
          text[place] = kBytes[below(kBytes.size())];
          break;
        case 1:
          text.erase(place, 1 + below(20));
          break;
        default:
          text.insert(place, text.substr(below(text.size()), 1 + below(40)));
          break;
      }
    }
    expectPlantOrFault(text);
  }
}

TEST(PlantFuzz, Every_truncation_is_a_fault) {
  for (std::size_t length = 0; length < kEveryKey.size(); ++length) {
    EXPECT_NE(plantFault(kEveryKey.substr(0, length)), "") << length;
  }
}

}  // namespace
}  // namespace sizewright
