#include "presentation/documents/zip_archive.h"

#include <cstdlib>
#include <cstring>

#include "foundation/message_rows.h"
#include "presentation/documents/template_failure.h"

namespace velmar::presentation {
namespace {

// 1 January 2024, 0:00: a report must not change because it was written at another time.
constexpr zip_uint16_t kFixedTime = 0;
constexpr zip_uint16_t kFixedDate = ((2024 - 1980) << 9) | (1 << 5) | 1;

[[noreturn]] void FailToOpen(zip_error_t& error) {
  const std::string detail = zip_error_strerror(&error);
  const bool protected_by_password = zip_error_code_zip(&error) == ZIP_ER_ENCRNOTSUPP;
  zip_error_fini(&error);
  throw TemplateFailure(protected_by_password ? kTemplateProtectedRow : kTemplateDamagedRow,
                        "ZIP: " + detail);
}

}  // namespace

ZipArchive::ZipArchive(std::string_view bytes) {
  zip_error_t error;
  zip_error_init(&error);
  // libzip gets a copy of its own: it frees the bytes when it shares them with what it writes, also if told
  // not to.
  void* copy = bytes.empty() ? nullptr : std::malloc(bytes.size());
  if (copy != nullptr) std::memcpy(copy, bytes.data(), bytes.size());
  source_.reset(zip_source_buffer_create(copy, copy == nullptr ? 0 : bytes.size(), 1, &error));
  if (!source_) std::free(copy);
  if (!source_) FailToOpen(error);
  zip_source_keep(source_.get());
  archive_.reset(zip_open_from_source(source_.get(), bytes.empty() ? ZIP_CREATE | ZIP_TRUNCATE : 0, &error));
  if (!archive_) {
    zip_source_free(source_.get());
    FailToOpen(error);
  }
  zip_error_fini(&error);
}

void ZipArchive::Put(const std::string& name, std::string_view bytes) {
  zip_source_t* source = zip_source_buffer(archive_.get(), bytes.data(), bytes.size(), 0);
  if (source == nullptr) throw TemplateFailure(kTemplateDamagedRow, "ZIP: no memory for " + name);
  const zip_int64_t index =
      zip_file_add(archive_.get(), name.c_str(), source, ZIP_FL_OVERWRITE | ZIP_FL_ENC_UTF_8);
  if (index < 0) {
    zip_source_free(source);
    throw TemplateFailure(kTemplateDamagedRow, "ZIP: cannot put " + name);
  }
  const auto entry = static_cast<zip_uint64_t>(index);
  zip_set_file_compression(archive_.get(), entry, ZIP_CM_DEFLATE, 9);
  zip_file_set_dostime(archive_.get(), entry, kFixedTime, kFixedDate, 0);
}

std::string ZipArchive::Close() {
  if (zip_close(archive_.get()) != 0) {
    throw TemplateFailure(kTemplateDamagedRow, std::string("ZIP: ") + zip_strerror(archive_.get()));
  }
  static_cast<void>(archive_.release());
  zip_stat_t stat;
  if (zip_source_open(source_.get()) != 0 || zip_source_stat(source_.get(), &stat) != 0 ||
      (stat.valid & ZIP_STAT_SIZE) == 0) {
    throw TemplateFailure(kTemplateDamagedRow, "ZIP: cannot read back what was written");
  }
  std::string bytes(stat.size, '\0');
  const zip_int64_t read = zip_source_read(source_.get(), bytes.data(), bytes.size());
  zip_source_close(source_.get());
  if (read != static_cast<zip_int64_t>(bytes.size())) {
    throw TemplateFailure(kTemplateDamagedRow, "ZIP: cannot read back what was written");
  }
  return bytes;
}

}  // namespace velmar::presentation
