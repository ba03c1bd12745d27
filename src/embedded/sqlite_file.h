#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace sizewright {

class SqliteFile;

/// One prepared statement of a file, used again and again.
class SqliteStatement {
 public:
  SqliteStatement(SqliteFile& file, std::string_view sql);

  /// Sets the next parameter. The text must stay until the statement was run.
  SqliteStatement& with(std::string_view text);
  /// Gets the next row; false at the end, which makes the statement ready to be run again.
  bool next();
  /// Runs a statement that gives no rows.
  void run();
  /// A column of the row at hand, good until the next row.
  [[nodiscard]] std::string_view text(int column) const;
  [[nodiscard]] std::int64_t number(int column) const;

 private:
  struct Delete {
    void operator()(sqlite3_stmt* statement) const;
  };
  void fail(int code);

  SqliteFile& file_;
  std::unique_ptr<sqlite3_stmt, Delete> statement_;
  int parameter_ = 0;
};

/// An SQLite database. What goes wrong with it is thrown as InputError, with its path. The text of
/// a file may be anybody's: nothing in it is run.
class SqliteFile {
 public:
  enum class Use { read, write, create };
  SqliteFile(const std::filesystem::path& path, Use use);
  ~SqliteFile();
  SqliteFile(const SqliteFile&) = delete;
  SqliteFile& operator=(const SqliteFile&) = delete;

  void run(const char* sql);
  std::int64_t number(std::string_view sql);
  std::string text(std::string_view sql);

  /// Keeps other writers out until the file is closed; readers see what was last stored. False when
  /// anybody else has it open. The file must have been read before.
  bool claim();

  [[noreturn]] void fail(int code) const;
  [[noreturn]] void refuse(std::string_view fault) const;

 private:
  friend class SqliteStatement;
  struct Close {
    void operator()(sqlite3* connection) const;
  };
  using Connection = std::unique_ptr<sqlite3, Close>;

  [[nodiscard]] Connection openFile(Use use, bool isFrozen) const;
  void openForReading();

  std::filesystem::path path_;
  Connection connection_;
};

/// A transaction: undone at the end of the block unless it was committed.
class SqliteTransaction {
 public:
  /// `begin`: "BEGIN" for reading, "BEGIN IMMEDIATE" for writing.
  SqliteTransaction(SqliteFile& file, const char* begin);
  ~SqliteTransaction();
  SqliteTransaction(const SqliteTransaction&) = delete;
  SqliteTransaction& operator=(const SqliteTransaction&) = delete;
  void commit();

 private:
  SqliteFile& file_;
  bool isOpen_ = true;
};

}  // namespace sizewright
