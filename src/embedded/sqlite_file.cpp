#include "sizewright/embedded/sqlite_file.h"

#include <sqlite3.h>

#include "sizewright/embedded/input_error.h"
#include "sizewright/embedded/plant_file.h"

namespace sizewright {

namespace {

constexpr int kPatience = 250;  // milliseconds that a lock of somebody else's is waited for

// What went wrong, for the user.
std::string faultText(int code, const std::string& detail) {
  switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return "in use by another process";
    case SQLITE_NOTADB:
      return "not a plant database";
    case SQLITE_FULL:
      return "no space left to store it in";
    case SQLITE_READONLY:
    case SQLITE_PERM:
      return "cannot be written";
    case SQLITE_CANTOPEN:
      return "cannot be opened";
    case SQLITE_CORRUPT:
      return "damaged: " + detail;
    case SQLITE_IOERR:
      return "cannot be read or written: " + detail;
    default:
      return "cannot be used: " + detail;
  }
}

// A path as a URI, for the options that only a URI can carry.
std::string uriOf(const std::filesystem::path& path, std::string_view options) {
  static constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string result = "file:";
  for (const char c : path.string()) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte > 0x20 && byte < 0x7F && c != '%' && c != '?' && c != '#') {
      result += c;
    } else {
      result.append(1, '%').append(1, kDigits[byte >> 4U]).append(1, kDigits[byte & 0xFU]);
    }
  }
  return result.append(1, '?').append(options);
}

}  // namespace

// --- Statements ---------------------------------------------------------------------------------

void SqliteStatement::Delete::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

SqliteStatement::SqliteStatement(SqliteFile& file, std::string_view sql) : file_(file) {
  sqlite3_stmt* statement = nullptr;
  const int code = sqlite3_prepare_v2(file.connection_.get(), sql.data(),
                                      static_cast<int>(sql.size()), &statement, nullptr);
  statement_.reset(statement);
  if (code != SQLITE_OK) file_.fail(code);
}

SqliteStatement& SqliteStatement::with(std::string_view text) {
  const char* data = text.empty() ? "" : text.data();  // a null pointer would be a null value
  const int code = sqlite3_bind_text64(statement_.get(), ++parameter_, data, text.size(),
                                       SQLITE_STATIC, SQLITE_UTF8);
  if (code != SQLITE_OK) fail(code);
  return *this;
}

bool SqliteStatement::next() {
  const int code = sqlite3_step(statement_.get());
  if (code == SQLITE_ROW) return true;
  if (code != SQLITE_DONE) fail(code);
  sqlite3_reset(statement_.get());
  parameter_ = 0;
  return false;
}

void SqliteStatement::run() {
  while (next()) {
  }
}

void SqliteStatement::fail(int code) {
  // The text of the fault first: to reset the statement may forget it.
  const std::string detail = sqlite3_errmsg(file_.connection_.get());
  sqlite3_reset(statement_.get());
  parameter_ = 0;
  file_.refuse(faultText(code, detail));
}

std::string_view SqliteStatement::text(int column) const {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
  if (text == nullptr) return {};
  return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column))};
}

std::int64_t SqliteStatement::number(int column) const {
  return sqlite3_column_int64(statement_.get(), column);
}

// --- The file -----------------------------------------------------------------------------------

void SqliteFile::Close::operator()(sqlite3* connection) const {
  sqlite3_close(connection);
}

SqliteFile::SqliteFile(const std::filesystem::path& path, Use use) : path_(path) {
  std::error_code unknown;
  const auto kind = std::filesystem::status(path, unknown).type();
  if (use != Use::create && kind == std::filesystem::file_type::not_found) refuse("no such file");
  if (kind == std::filesystem::file_type::directory) refuse("is a directory");
  if (use != Use::create && kind != std::filesystem::file_type::regular) {
    refuse("not a plant database");
  }
  connection_ = openFile(use, false);
  if (use == Use::read) openForReading();
  if (use != Use::read && sqlite3_db_readonly(connection_.get(), "main") == 1) {
    refuse("cannot be written");
  }
}

SqliteFile::~SqliteFile() = default;

SqliteFile::Connection SqliteFile::openFile(Use use, bool isFrozen) const {
  int flags = SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
  flags |= use == Use::read ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
  if (use == Use::create) flags |= SQLITE_OPEN_CREATE;
  if (isFrozen) flags |= SQLITE_OPEN_URI;
  // An absolute path is never taken for a URI or for one of the names with a meaning of their own.
  std::error_code unknown;
  const std::filesystem::path whole = std::filesystem::absolute(path_, unknown);
  const std::string name = isFrozen ? uriOf(whole, "immutable=1") : whole.string();

  sqlite3* opened = nullptr;
  const int code = sqlite3_open_v2(name.c_str(), &opened, flags, nullptr);
  Connection connection(opened);
  if (code != SQLITE_OK) {
    refuse(faultText(code, opened != nullptr ? sqlite3_errmsg(opened) : "not enough memory"));
  }
  sqlite3_busy_timeout(opened, kPatience);
  sqlite3_limit(opened, SQLITE_LIMIT_LENGTH, static_cast<int>(kMaxInputBytes));
  sqlite3_db_config(opened, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(opened, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_exec(opened, "PRAGMA cell_size_check = ON", nullptr, nullptr, nullptr);
  return connection;
}

// A file in a place that cannot be written has no room for the files that readers share; without a
// log beside it, it can be read as it stands.
void SqliteFile::openForReading() {
  const int code =
      sqlite3_exec(connection_.get(), "PRAGMA schema_version", nullptr, nullptr, nullptr) & 0xFF;
  if (code != SQLITE_CANTOPEN && code != SQLITE_READONLY) return;  // others show at the next use
  std::error_code unknown;
  const std::filesystem::path log = path_.string() + "-wal";
  if (std::filesystem::exists(log, unknown) && !std::filesystem::is_empty(log, unknown)) return;
  connection_ = openFile(Use::read, true);
}

void SqliteFile::run(const char* sql) {
  const int code = sqlite3_exec(connection_.get(), sql, nullptr, nullptr, nullptr);
  if (code != SQLITE_OK) fail(code);
}

std::int64_t SqliteFile::number(std::string_view sql) {
  SqliteStatement statement(*this, sql);
  return statement.next() ? statement.number(0) : 0;
}

std::string SqliteFile::text(std::string_view sql) {
  SqliteStatement statement(*this, sql);
  return statement.next() ? std::string(statement.text(0)) : std::string();
}

bool SqliteFile::claim() {
  // Everybody who has the file open holds a shared lock on it, so that only one who is alone gets
  // the exclusive lock; the shared lock, which stays, then keeps others from doing the same.
  run("PRAGMA locking_mode = EXCLUSIVE");
  const int code = sqlite3_exec(connection_.get(), "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
  if ((code & 0xFF) == SQLITE_BUSY) return false;
  if (code != SQLITE_OK) fail(code);
  run("COMMIT");
  run("PRAGMA locking_mode = NORMAL");
  run("SELECT 1 FROM sqlite_schema");  // the mode comes into force with the next use
  return true;
}

void SqliteFile::fail(int code) const {
  refuse(faultText(code, sqlite3_errmsg(connection_.get())));
}

void SqliteFile::refuse(std::string_view fault) const {
  throw InputError(path_.string(), fault);
}

// --- Transactions -------------------------------------------------------------------------------

SqliteTransaction::SqliteTransaction(SqliteFile& file, const char* begin) : file_(file) {
  file.run(begin);
}

SqliteTransaction::~SqliteTransaction() {
  if (!isOpen_) return;
  try {
    file_.run("ROLLBACK");
  } catch (const InputError&) {
    // A fault that ended the transaction by itself has undone it as well.
  }
}

void SqliteTransaction::commit() {
  file_.run("COMMIT");
  isOpen_ = false;
}

}  // namespace sizewright
