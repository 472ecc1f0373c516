#include "access_reader/access_table.h"

#include <charconv>
#include <cstring>
#include <string_view>

#include "access_reader/exit_code.h"
#include "access_reader/jet_date.h"

namespace velmar::access_reader {
namespace {

Storage StorageOf(int jet_type) {
  switch (jet_type) {
    case MDB_BOOL:
    case MDB_BYTE:
    case MDB_INT:
    case MDB_LONGINT:
      return Storage::kInteger;
    case MDB_FLOAT:
    case MDB_DOUBLE:
    case MDB_MONEY:
    case MDB_NUMERIC:
      return Storage::kReal;
    case MDB_OLE:
    case MDB_BINARY:
      return Storage::kBytes;
    default:
      return Storage::kText;
  }
}

std::size_t BufferSize(int jet_type) {
  switch (jet_type) {
    case MDB_TEXT:
    case MDB_MEMO:
      return kTextBytes;
    case MDB_OLE:
      return std::size_t{MDB_BIND_SIZE} * 64;
    default:
      return 8192;
  }
}

/// The bytes that a type takes in its page; 0 for the types that are read from the bound buffer.
int RawSize(int jet_type) {
  switch (jet_type) {
    case MDB_BYTE:
      return 1;
    case MDB_INT:
      return 2;
    case MDB_LONGINT:
    case MDB_FLOAT:
      return 4;
    case MDB_DOUBLE:
    case MDB_DATETIME:
      return 8;
    default:
      return 0;
  }
}

Value Bytes(const void* data, std::size_t size) {
  const auto* begin = static_cast<const std::byte*>(data);
  return std::vector<std::byte>(begin, begin + size);
}

Value ExactNumber(std::string_view text) {
  double value = 0.0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc{} || end != text.data() + text.size()) {
    throw ReadingFailure{ExitCode::kTableDamaged, "a decimal number cannot be read"};
  }
  return value;
}

Value OleObject(MdbHandle* mdb, MdbColumn* column) {
  std::size_t size = 0;
  void* data = mdb_ole_read_full(mdb, column, &size);
  if (data == nullptr) throw ReadingFailure{ExitCode::kTableDamaged, "an OLE object cannot be read"};
  Value value = Bytes(data, size);
  std::free(data);
  return value;
}

}  // namespace

AccessTable::AccessTable(MdbCatalogEntry* entry) : name_(entry->object_name), table_(mdb_read_table(entry)) {
  if (name_.empty() || !table_ || mdb_read_columns(table_.get()) == nullptr || table_->columns == nullptr ||
      table_->columns->len == 0) {
    throw ReadingFailure{ExitCode::kTableDamaged, "a table definition is damaged"};
  }
  for (guint i = 0; i < table_->columns->len; ++i) {
    const auto* column = static_cast<const MdbColumn*>(g_ptr_array_index(table_->columns, i));
    columns_.push_back({column->name, StorageOf(column->col_type)});
  }
  // The indexes stand on the page that is loaded now; once a row has been fetched it is another one.
  ReadIndexes();
  Bind();
  mdb_rewind_table(table_.get());
}

void AccessTable::ReadIndexes() {
  constexpr int kRelation = 2;
  mdb_read_indices(table_.get());  // gives null even when all went well
  if (table_->indices == nullptr) return;
  for (guint i = 0; i < table_->indices->len; ++i) {
    const auto* index = static_cast<const MdbIndex*>(g_ptr_array_index(table_->indices, i));
    if (index->index_type == kRelation || index->num_keys == 0 || index->num_keys > MDB_MAX_IDX_COLS)
      continue;
    IndexInfo info{index->name, {}, (index->flags & MDB_IDX_UNIQUE) != 0 || index->index_type == 1};
    for (unsigned key = 0; key < index->num_keys; ++key) {
      const int number = index->key_col_num[key];
      if (number < 1 || static_cast<std::size_t>(number) > columns_.size()) {
        throw ReadingFailure{ExitCode::kTableDamaged, "an index names a column that is not there"};
      }
      info.columns.push_back(columns_[static_cast<std::size_t>(number) - 1].name);
    }
    indexes_.push_back(std::move(info));
  }
}

void AccessTable::Bind() {
  bindings_.resize(columns_.size());
  for (std::size_t i = 0; i < bindings_.size(); ++i) {
    Binding& binding = bindings_[i];
    binding.column = static_cast<MdbColumn*>(g_ptr_array_index(table_->columns, i));
    binding.size = BufferSize(binding.column->col_type);
    // Left uninitialised on purpose: most of a megabyte is never touched.
    binding.buffer.reset(new char[binding.size]);
    binding.buffer[0] = '\0';
    if (mdb_bind_column(table_.get(), static_cast<int>(i) + 1, binding.buffer.get(), &binding.length) < 0) {
      throw ReadingFailure{ExitCode::kTableDamaged, "a column cannot be read"};
    }
  }
}

bool AccessTable::Next(std::vector<Value>& row) {
  if (mdb_fetch_row(table_.get()) == 0) return false;
  row.clear();
  for (const Binding& binding : bindings_) row.push_back(Read(binding));
  return true;
}

Value AccessTable::Read(const Binding& binding) const {
  const MdbColumn& column = *binding.column;
  const char* buffer = binding.buffer.get();
  // Yes/no lives in the row's null bits and is never null itself.
  if (column.col_type == MDB_BOOL) return std::int64_t{buffer[0] == '1'};
  if (column.cur_value_len == 0) return {};
  if (RawSize(column.col_type) > 0) return ReadFixed(column);
  if (column.col_type == MDB_OLE) return OleObject(table_->entry->mdb, binding.column);
  const auto length = static_cast<std::size_t>(binding.length < 0 ? 0 : binding.length);
  if (length + 1 >= binding.size) throw ReadingFailure{ExitCode::kTableDamaged, "a value is too long"};
  if (column.col_type == MDB_BINARY) return Bytes(buffer, length);
  const std::string_view text(buffer, strnlen(buffer, binding.size));
  if (column.col_type == MDB_MONEY || column.col_type == MDB_NUMERIC) return ExactNumber(text);
  if (text.empty()) return {};
  return std::string(text);
}

Value AccessTable::ReadFixed(const MdbColumn& column) const {
  MdbHandle* mdb = table_->entry->mdb;
  const int start = column.cur_value_start;
  if (start < 0 || start + RawSize(column.col_type) > mdb->fmt->pg_size) {
    throw ReadingFailure{ExitCode::kTableDamaged, "a value lies outside its page"};
  }
  unsigned char* page = mdb->pg_buf;
  switch (column.col_type) {
    case MDB_BYTE:
      return std::int64_t{mdb_get_byte(page, start)};
    case MDB_INT:
      return std::int64_t{static_cast<std::int16_t>(mdb_get_int16(page, start))};
    case MDB_LONGINT:
      return std::int64_t{static_cast<std::int32_t>(mdb_get_int32(page, start))};
    case MDB_FLOAT:
      return static_cast<double>(mdb_get_single(page, start));
    case MDB_DOUBLE:
      return mdb_get_double(page, start);
    default:
      break;
  }
  std::string date = JetDateText(mdb_get_double(page, start));
  if (date.empty()) throw ReadingFailure{ExitCode::kTableDamaged, "a date is outside the calendar"};
  return date;
}

}  // namespace velmar::access_reader
