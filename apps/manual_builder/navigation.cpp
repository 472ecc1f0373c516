#include "manual_builder/navigation.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

namespace velmar::manual {
namespace {

using Object = QPDFObjectHandle;

constexpr int kTitleLevel = 1;

/// A bookmark on its way: its object and the last of those below it.
struct Bookmark {
  Object object{};
  int level = 0;
  Object last{};
  int count = 0;
};

Object Number(double value) { return Object::newReal(value, 2); }

Object PlaceOf(Object page, double top) {
  return Object::newArray({page, Object::newName("/XYZ"), Object::newNull(),
                           Number(PageLook::kPage.height() - top), Object::newNull()});
}

void Close(Bookmark& bookmark, bool open) {
  if (bookmark.count == 0) return;
  bookmark.object.replaceKey("/Last", bookmark.last);
  bookmark.object.replaceKey("/Count", Object::newInteger(open ? bookmark.count : -bookmark.count));
}

/// Hangs `child` below `parent`, behind those that are there.
void Hang(Bookmark& parent, Object child) {
  child.replaceKey("/Parent", parent.object);
  if (parent.count == 0) {
    parent.object.replaceKey("/First", child);
  } else {
    child.replaceKey("/Prev", parent.last);
    parent.last.replaceKey("/Next", child);
  }
  parent.last = child;
  ++parent.count;
}

Object BookmarksOf(QPDF& document, const std::vector<Object>& pages,
                   const std::vector<PlacedHeading>& headings) {
  std::vector<Bookmark> open = {
      {document.makeIndirectObject(Object::parse("<< /Type /Outlines >>")), kTitleLevel, {}, 0}};
  for (const PlacedHeading& heading : headings) {
    while (open.size() > 1 && open.back().level >= heading.heading.level) {
      Close(open.back(), /*open=*/false);
      open.pop_back();
    }
    Object object = document.makeIndirectObject(Object::newDictionary());
    object.replaceKey("/Title", Object::newUnicodeString(heading.heading.title));
    object.replaceKey("/Dest", PlaceOf(pages.at(static_cast<std::size_t>(heading.page)), heading.top));
    Hang(open.back(), object);
    open.push_back({object, heading.heading.level, {}, 0});
  }
  while (open.size() > 1) {
    Close(open.back(), /*open=*/false);
    open.pop_back();
  }
  Close(open.front(), /*open=*/true);
  return open.front().object;
}

void AddLink(QPDF& document, std::vector<Object>& pages, const PlacedLink& link, const PlacedHeading& to) {
  const double height = PageLook::kPage.height();
  Object note = Object::parse("<< /Type /Annot /Subtype /Link /Border [0 0 0] >>");
  note.replaceKey("/Rect", Object::newArray({Number(link.place.left()), Number(height - link.place.bottom()),
                                             Number(link.place.right()), Number(height - link.place.top())}));
  note.replaceKey("/Dest", PlaceOf(pages.at(static_cast<std::size_t>(to.page)), to.top));
  Object page = pages.at(static_cast<std::size_t>(link.page));
  Object notes = page.getKey("/Annots");
  if (!notes.isArray()) notes = page.replaceKeyAndGetNew("/Annots", Object::newArray());
  notes.appendItem(document.makeIndirectObject(note));
}

}  // namespace

void AddNavigation(const std::string& file, const std::vector<PlacedHeading>& headings,
                   const std::vector<PlacedLink>& links) {
  const std::string finished = file + ".new";
  {
    QPDF document;
    document.processFile(file.c_str());
    std::vector<Object> pages;
    for (QPDFPageObjectHelper& page : QPDFPageDocumentHelper(document).getAllPages())
      pages.push_back(page.getObjectHandle());
    Object root = document.getRoot();
    root.replaceKey("/Outlines", BookmarksOf(document, pages, headings));
    root.replaceKey("/PageMode", Object::newName("/UseOutlines"));
    root.replaceKey("/Lang", Object::newString("it-IT"));
    root.replaceKey("/ViewerPreferences", Object::parse("<< /DisplayDocTitle true >>"));
    for (const PlacedLink& link : links) {
      const auto to = std::find_if(headings.begin(), headings.end(), [&](const PlacedHeading& heading) {
        return heading.heading.anchor == link.anchor;
      });
      if (to == headings.end()) throw std::runtime_error("a link leads nowhere: #" + link.anchor);
      AddLink(document, pages, link, *to);
    }
    QPDFWriter writer(document, finished.c_str());
    writer.setObjectStreamMode(qpdf_o_generate);
    writer.write();
  }
  std::filesystem::rename(finished, file);
}

}  // namespace velmar::manual
