#include "presentation/schedule/bound_notes.h"

#include <algorithm>
#include <string_view>

namespace velmar::presentation {
namespace {

int Highest(pugi::xml_node root, const char* name, const char* attribute) {
  int highest = 0;
  for (const pugi::xml_node node : root.children(name))
    highest = std::max(highest, node.attribute(attribute).as_int());
  return highest;
}

}  // namespace

std::map<std::string, std::string> TakeLists(pugi::xml_node numbering, pugi::xml_node chapter) {
  std::map<std::string, std::string> abstracts;
  int next = Highest(numbering, "w:abstractNum", "w:abstractNumId") + 1;
  // The kinds of lists stand before the lists.
  const pugi::xml_node first_list = numbering.child("w:num");
  for (const pugi::xml_node list : chapter.children("w:abstractNum")) {
    pugi::xml_node copy =
        first_list ? numbering.insert_copy_before(list, first_list) : numbering.append_copy(list);
    // Lists that share it would go on counting from one chapter to the next.
    copy.remove_child("w:nsid");
    const std::string number = std::to_string(next++);
    abstracts[list.attribute("w:abstractNumId").value()] = number;
    copy.attribute("w:abstractNumId").set_value(number.c_str());
  }
  std::map<std::string, std::string> numbers;
  next = Highest(numbering, "w:num", "w:numId") + 1;
  for (const pugi::xml_node list : chapter.children("w:num")) {
    pugi::xml_node copy = numbering.append_copy(list);
    const std::string number = std::to_string(next++);
    numbers[list.attribute("w:numId").value()] = number;
    copy.attribute("w:numId").set_value(number.c_str());
    pugi::xml_attribute kind = copy.child("w:abstractNumId").attribute("w:val");
    if (const auto found = abstracts.find(kind.value()); found != abstracts.end())
      kind.set_value(found->second.c_str());
  }
  return numbers;
}

std::map<std::string, std::string> TakeNotes(pugi::xml_node notes, pugi::xml_node chapter,
                                             const char* element) {
  std::map<std::string, std::string> numbers;
  int next = Highest(notes, element, "w:id") + 1;
  for (const pugi::xml_node note : chapter.children(element)) {
    const std::string_view type = note.attribute("w:type").value();
    if (!type.empty() && type != "normal") continue;
    pugi::xml_node copy = notes.append_copy(note);
    const std::string number = std::to_string(next++);
    numbers[note.attribute("w:id").value()] = number;
    copy.attribute("w:id").set_value(number.c_str());
  }
  return numbers;
}

void Renumber(pugi::xml_node root, const char* name, const char* attribute,
              const std::map<std::string, std::string>& values) {
  if (values.empty()) return;
  for (pugi::xml_node node : root.children()) {
    if (std::string_view(node.name()) == name) {
      const auto found = values.find(node.attribute(attribute).value());
      if (found != values.end()) node.attribute(attribute).set_value(found->second.c_str());
    }
    Renumber(node, name, attribute, values);
  }
}

}  // namespace velmar::presentation
