#include "sizewright/app/program.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <new>
#include <nlohmann/json.hpp>

#include "sizewright/app/drive.h"
#include "sizewright/app/output.h"
#include "sizewright/app/plant_source.h"
#include "sizewright/app/report.h"
#include "sizewright/app/size_command.h"
#include "sizewright/embedded/embedded_files.h"
#include "sizewright/embedded/json_printer.h"
#include "sizewright/embedded/plant_file.h"
#include "sizewright/embedded/registry.h"

namespace sizewright {

namespace {

constexpr int kBadInput = 2;

constexpr const char* kExamples = R"(Examples:
  sizewright new plant.json               write a small plant to start from
  sizewright size plant.json              size its items and print a table
  sizewright size plant.json --json       one JSON report per item, a line each
  sizewright drive plant.json P-101       everything that sizing one item does
  sizewright import plant.json plant.szw  make a plant database
  sizewright size plant.szw               size it and store the results in it
  sizewright export plant.szw             write the database as a plant file

Exit status: 0 done, 1 some item not sized (its messages say why), 2 bad usage or bad input.)";

/// Arguments of the commands.
struct Arguments {
  SizeOptions size;
  std::filesystem::path plant;
  std::string item;
  std::filesystem::path script;
  std::filesystem::path database;
  std::filesystem::path out;
  bool force = false;
};

int drive(const Arguments& arguments) {
  const DriveScript script =
      arguments.script.empty() ? defaultScript() : readDriveScript(arguments.script);
  const std::unique_ptr<Plant> plant = readAnyPlant(arguments.plant);
  const PlantItem& item = itemNamed(*plant, arguments.item);
  EmbeddedHost host(*plant);
  ItemRun run(host, item, script.form);
  const std::vector<StepResult> steps = perform(run, script.steps);
  std::string text;
  printJson(text, reportOf(host, item, run, script.form, steps), 0);
  Output out(arguments.out);
  out.line(text);
  out.finish();
  return 0;
}

int check(const Arguments& arguments) {
  const std::unique_ptr<Plant> plant = readAnyPlant(arguments.plant);
  Output out({});
  out.line(fmt::format("{}: no fault; items: {}, streams: {}, blocks: {}", arguments.plant.string(),
                       plant->items.size(), plant->store.streams().size(),
                       plant->store.blocks().size()));
  out.finish();
  return 0;
}

int import(const Arguments& arguments) {
  importPlant(arguments.plant, arguments.database, equipmentClassNames(), arguments.force);
  return 0;
}

int exportDatabase(const Arguments& arguments) {
  const std::unique_ptr<Plant> plant = readPlantDatabase(arguments.database, equipmentClassNames());
  Output out(arguments.out);
  writePlant(*plant, out.stream());
  out.finish();
  return 0;
}

int writeNewPlant(const Arguments& arguments) {
  std::error_code unknown;
  if (!arguments.force && std::filesystem::exists(arguments.out, unknown) &&
      std::filesystem::is_regular_file(arguments.out, unknown)) {
    throw InputError(arguments.out.string(), "exists already (--force replaces it)");
  }
  Output out(arguments.out);
  for (const EmbeddedFile& file : embeddedFiles()) {
    if (file.name == "templates/new_plant.json") out.stream() << file.text;
  }
  out.finish();
  return 0;
}

void addSize(CLI::App& program, SizeOptions& options) {
  CLI::App* size = program.add_subcommand("size", "Size the items of a plant, in order");
  size->add_option("PLANT", options.plant, "Plant file or plant database")->required();
  size->add_option("--item", options.items, "Size this item only; may be given several times")
      ->allow_extra_args(false);
  size->add_flag("--json", options.json, "Print one JSON report per item, a line each");
  size->add_option("--out", options.out, "Write to this file instead of standard output");
  size->add_option("--save", options.save, "Write the sized plant to this plant file");
  size->add_option("--report", options.report, "Write the JSON reports to this file, too");
  size->add_option("--published", options.published,
                   "Figures to print beside the results: {\"items\": {ITEM: {SLOT: value}}}");
  size->add_flag("--quiet", options.quiet, "No table and no progress");
  size->add_flag("--verbose", options.verbose, "Print calculations and notes, too");
}

using Command = int (*)(const Arguments&);

/// The commands of the program; each says what to do when it is chosen.
class Commands {
 public:
  Commands(CLI::App& program, Arguments& arguments) : program_(program), arguments_(arguments) {
    addSize(program, arguments.size);
    CLI::App* drive =
        add("drive", "Perform operations on one item and print what they did", sizewright::drive);
    addPlant(*drive, "Plant file or plant database");
    drive->add_option("ITEM", arguments.item, "Name of the item")->required();
    drive->add_option("--script", arguments.script, "JSON document that says what to do");
    drive->add_option("--out", arguments.out, "Write to this file instead of standard output");

    addPlant(*add("check", "Check a plant without sizing anything", sizewright::check),
             "Plant file or plant database");

    CLI::App* import = add("import", "Make a plant database of a plant file", sizewright::import);
    addPlant(*import, "Plant file");
    import->add_option("DATABASE", arguments.database, "Plant database to make")->required();
    import->add_flag("--force", arguments.force, "Replace an existing file");

    CLI::App* exported = add("export", "Write a plant database as a plant file", exportDatabase);
    exported->add_option("DATABASE", arguments.database, "Plant database")->required();
    exported->add_option("FILE,--out", arguments.out, "Plant file; standard output without one");

    CLI::App* fresh = add("new", "Write a small plant to start from", writeNewPlant);
    fresh->add_option("FILE", arguments.out, "Plant file; standard output without one");
    fresh->add_flag("--force", arguments.force, "Replace an existing file");
  }

  int run() const {
    if (program_.got_subcommand("size")) return sizePlant(arguments_.size);
    for (const auto& [subcommand, command] : commands_) {
      if (subcommand->parsed()) return command(arguments_);
    }
    return kBadInput;
  }

 private:
  CLI::App* add(const char* name, const char* what, Command command) {
    CLI::App* subcommand = program_.add_subcommand(name, what);
    commands_.emplace_back(subcommand, command);
    return subcommand;
  }
  void addPlant(CLI::App& command, const char* what) {
    command.add_option("PLANT", arguments_.plant, what)->required();
  }

  CLI::App& program_;
  Arguments& arguments_;
  std::vector<std::pair<CLI::App*, Command>> commands_;
};

int fail(const char* what) {
  fmt::print(stderr, "sizewright: {}\n", what);
  return kBadInput;
}

}  // namespace

int runProgram(int argc, const char* const* argv) {
  CLI::App program("Sizes process-plant equipment for cost estimators.", "sizewright");
  program.set_version_flag("--version", "sizewright " SIZEWRIGHT_VERSION);
  program.footer(kExamples);
  program.require_subcommand(1);
  Arguments arguments;
  const Commands commands(program, arguments);
  try {
    program.parse(argc, argv);
    return commands.run();
  } catch (const CLI::Success& asked) {  // help or version
    return program.exit(asked);
  } catch (const CLI::ParseError& fault) {
    return fail(fault.what());
  } catch (const InputError& fault) {
    return fail(fault.what());
  } catch (const std::bad_alloc&) {
    return fail("not enough memory");
  } catch (const std::exception& fault) {
    return fail(fault.what());
  }
}

}  // namespace sizewright
