#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include <zip.h>

namespace velmar::presentation {

/// A ZIP held in memory while libzip works on it.
class ZipArchive {
 public:
  /// Opens `bytes`; an empty view begins a new one.
  /// @throws TemplateFailure when they are no ZIP
  explicit ZipArchive(std::string_view bytes);

  zip_t* Handle() const { return archive_.get(); }

  /// Adds or replaces an entry; `bytes` must outlive the archive. The entry gets a fixed time.
  void Put(const std::string& name, std::string_view bytes);

  /// Ends the work. @return the ZIP as it stands then
  std::string Close();

 private:
  struct Discard {
    void operator()(zip_t* archive) const { zip_discard(archive); }
  };
  struct FreeSource {
    void operator()(zip_source_t* source) const { zip_source_free(source); }
  };

  std::unique_ptr<zip_source_t, FreeSource> source_;
  std::unique_ptr<zip_t, Discard> archive_;
};

}  // namespace velmar::presentation
