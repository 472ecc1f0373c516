// An Excel template is filled or refused; what was filled opens again.
#include "foundation/failure.h"
#include "presentation/documents/workbook.h"
#include "tests/fuzz/outside_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmar;
  try {
    presentation::Workbook workbook(fuzz::TextOf(data, size));
    workbook.AddSheet("Dati", false, {10.0, 20.0});
    workbook.RemoveCurve("B");
    workbook.RemoveCharts();
    const std::string bytes = workbook.Bytes();
    presentation::Workbook again(bytes);
  } catch (const Failure&) {
  }
  return 0;
}
