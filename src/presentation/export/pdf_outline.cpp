#include "presentation/export/pdf_outline.h"

#include <QString>
#include <array>
#include <charconv>
#include <cstdio>
#include <map>
#include <stdexcept>
#include <string_view>

namespace velmar::presentation {
namespace {

[[noreturn]] void Unknown(const char* what) {
  throw std::invalid_argument(std::string("PDF of another make: ") + what);
}

std::size_t NumberAt(std::string_view text, std::size_t at) {
  while (at < text.size() && (text[at] == ' ' || text[at] == '\n' || text[at] == '\r')) ++at;
  std::size_t number = 0;
  const auto read = std::from_chars(text.data() + at, text.data() + text.size(), number);
  if (read.ec != std::errc()) Unknown("a number is missing");
  return number;
}

/// The number behind `key` in a dictionary.
std::size_t NumberBehind(std::string_view dictionary, std::string_view key) {
  const std::size_t at = dictionary.find(key);
  if (at == std::string_view::npos) Unknown(std::string(key).c_str());
  return NumberAt(dictionary, at + key.size());
}

std::string Reference(std::size_t object) { return std::to_string(object) + " 0 R"; }

/// A text string: UTF-16 with its mark, in hexadecimal digits.
std::string TextString(const std::string& utf8) {
  static constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text = "<FEFF";
  for (const QChar character : QString::fromStdString(utf8)) {
    for (int shift = 12; shift >= 0; shift -= 4)
      text +=
          kDigits[(static_cast<std::size_t>(character.unicode()) >> static_cast<std::size_t>(shift)) & 15U];
  }
  return text + ">";
}

std::string Decimal(double value) {
  std::array<char, 32> digits{};
  const auto written =
      std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, 2);
  return {digits.data(), written.ptr};
}

/// A PDF file with a plain table of its objects, to which objects are added.
class UpdatedPdf {
 public:
  explicit UpdatedPdf(std::string pdf) : pdf_(std::move(pdf)) {
    const std::size_t start = pdf_.rfind("startxref");
    if (start == std::string::npos) Unknown("no table of objects");
    table_ = NumberAt(pdf_, start + 9);
    if (pdf_.compare(table_, 4, "xref") != 0) Unknown("no plain table of objects");
    const std::size_t trailer = pdf_.find("trailer", table_);
    trailer_ = pdf_.substr(trailer, start - trailer);
    next_ = NumberBehind(trailer_, "/Size");
    root_ = NumberBehind(trailer_, "/Root");
    const std::string tree = Body(NumberBehind(Body(root_), "/Pages"));
    const std::size_t kids = tree.find("/Kids");
    const std::size_t end = tree.find(']', kids);
    for (std::size_t at = tree.find('[', kids) + 1; at < end;) {
      const std::size_t reference = tree.find(" 0 R", at);
      if (reference > end) break;
      pages_.push_back(NumberAt(tree, at));
      at = reference + 4;
    }
  }

  std::size_t Root() const { return root_; }
  std::size_t Page(int index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= pages_.size()) Unknown("a page is missing");
    return pages_[static_cast<std::size_t>(index)];
  }

  /// What stands between "obj" and "endobj".
  std::string Body(std::size_t object) const {
    const std::size_t first = NumberAt(pdf_, table_ + 5);
    const std::size_t entries = pdf_.find('\n', table_ + 5) + 1;
    constexpr std::size_t kEntry = 20;
    const std::size_t offset = NumberAt(pdf_, entries + kEntry * (object - first));
    const std::size_t begin = pdf_.find("obj", offset) + 3;
    return pdf_.substr(begin, pdf_.find("endobj", begin) - begin);
  }

  std::size_t Reserve() { return next_++; }
  void Put(std::size_t object, std::string body) { changed_[object] = std::move(body); }

  /// Adds `entry` to the dictionary that `object` is.
  void Extend(std::size_t object, const std::string& entry) {
    const auto known = changed_.find(object);
    std::string body = known != changed_.end() ? known->second : Body(object);
    const std::size_t open = body.find("<<");
    if (open == std::string::npos) Unknown("no dictionary");
    Put(object, body.insert(open + 2, "\n" + entry));
  }

  /// Adds references to the list of annotations of the page that `object` is.
  void AddAnnotations(std::size_t object, const std::string& references) {
    const std::string page = Body(object);
    const std::size_t key = page.find("/Annots");
    if (key == std::string::npos) {
      Extend(object, "/Annots [" + references + "]");
      return;
    }
    // The list is an object of its own.
    const std::size_t list = NumberAt(page, key + 7);
    std::string body = Body(list);
    const std::size_t open = body.find('[');
    if (open == std::string::npos) Unknown("no list of annotations");
    Put(list, body.insert(open + 1, "\n" + references));
  }

  std::string Bytes() {
    std::map<std::size_t, std::size_t> places;
    if (pdf_.back() != '\n') pdf_ += '\n';
    for (const auto& [object, body] : changed_) {
      places[object] = pdf_.size();
      pdf_ += std::to_string(object) + " 0 obj" + (body.front() == '\n' ? "" : "\n") + body +
              (body.back() == '\n' ? "" : "\n") + "endobj\n";
    }
    const std::size_t table = pdf_.size();
    pdf_ += "xref\n";
    for (const auto& [object, place] : places) {
      std::array<char, 32> entry{};
      std::snprintf(entry.data(), entry.size(), "%010zu 00000 n \n", place);
      pdf_ += std::to_string(object) + " 1\n" + entry.data();
    }
    const std::size_t size = trailer_.find("/Size");
    const std::size_t behind =
        trailer_.find_first_not_of("0123456789", trailer_.find_first_of("0123456789", size));
    std::string trailer =
        trailer_.substr(0, size) + "/Size " + std::to_string(next_) + trailer_.substr(behind);
    trailer.insert(trailer.find("<<") + 2, "\n/Prev " + std::to_string(table_));
    pdf_ +=
        trailer + (trailer.back() == '\n' ? "" : "\n") + "startxref\n" + std::to_string(table) + "\n%%EOF\n";
    return std::move(pdf_);
  }

 private:
  std::string pdf_;
  std::string trailer_{};
  std::size_t table_ = 0;
  std::size_t next_ = 0;
  std::size_t root_ = 0;
  std::vector<std::size_t> pages_{};
  std::map<std::size_t, std::string> changed_{};
};

double PageHeight(const UpdatedPdf& pdf, std::size_t page) {
  const std::string body = pdf.Body(page);
  const std::size_t box = body.find("/MediaBox");
  if (box == std::string::npos) Unknown("no size of a page");
  const std::string values = body.substr(body.find('[', box) + 1);
  double numbers[4] = {};
  std::size_t at = 0;
  for (double& number : numbers) {
    at = values.find_first_not_of(" \n", at);
    const auto read = std::from_chars(values.data() + at, values.data() + values.size(), number);
    if (read.ec != std::errc()) Unknown("no size of a page");
    at = static_cast<std::size_t>(read.ptr - values.data());
  }
  return numbers[3];
}

void AddBookmarks(UpdatedPdf& pdf, const std::vector<PdfBookmark>& bookmarks) {
  if (bookmarks.empty()) return;
  const std::size_t list = pdf.Reserve();
  std::vector<std::size_t> items;
  for (std::size_t i = 0; i < bookmarks.size(); ++i) items.push_back(pdf.Reserve());
  for (std::size_t i = 0; i < bookmarks.size(); ++i) {
    std::string item = "<<\n/Title " + TextString(bookmarks[i].title) + "\n/Parent " + Reference(list) +
                       "\n/Dest [" + Reference(pdf.Page(bookmarks[i].page)) + " /Fit]\n";
    if (i > 0) item += "/Prev " + Reference(items[i - 1]) + "\n";
    if (i + 1 < items.size()) item += "/Next " + Reference(items[i + 1]) + "\n";
    pdf.Put(items[i], item + ">>");
  }
  pdf.Put(list, "<<\n/Type /Outlines\n/First " + Reference(items.front()) + "\n/Last " +
                    Reference(items.back()) + "\n/Count " + std::to_string(items.size()) + "\n>>");
  pdf.Extend(pdf.Root(), "/Outlines " + Reference(list) + "\n/PageMode /UseOutlines");
}

void AddLinks(UpdatedPdf& pdf, const std::vector<PdfLink>& links) {
  std::map<std::size_t, std::string> of_pages;
  for (const PdfLink& link : links) {
    const std::size_t page = pdf.Page(link.page);
    const double height = PageHeight(pdf, page);
    const std::size_t object = pdf.Reserve();
    pdf.Put(object, "<<\n/Type /Annot\n/Subtype /Link\n/Border [0 0 0]\n/Rect [" + Decimal(link.box.left()) +
                        " " + Decimal(height - link.box.bottom()) + " " + Decimal(link.box.right()) + " " +
                        Decimal(height - link.box.top()) + "]\n/Dest [" + Reference(pdf.Page(link.target)) +
                        " /Fit]\n>>");
    of_pages[page] += Reference(object) + " ";
  }
  for (const auto& [page, annotations] : of_pages) pdf.AddAnnotations(page, annotations);
}

}  // namespace

std::string WithOutline(std::string pdf, const std::vector<PdfBookmark>& bookmarks,
                        const std::vector<PdfLink>& links) {
  UpdatedPdf updated(std::move(pdf));
  AddBookmarks(updated, bookmarks);
  AddLinks(updated, links);
  return updated.Bytes();
}

}  // namespace velmar::presentation
