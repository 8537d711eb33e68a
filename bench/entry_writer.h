// Writing the sections of a definition file, and how to look their entries up.
#pragma once

#include <string>
#include <vector>

#include "bench/definition_file.h"

namespace bench {

// Appends to `text`, and to `lookups` one for each entry.
class EntryWriter {
 public:
  EntryWriter(std::string& text, std::vector<Lookup>& lookups) : text_(text), lookups_(lookups) {}

  void Section(const std::string& name) {
    section_ = name;
    text_ += "\n[" + name + "]\n";
  }

  void Entry(const std::string& key, const std::string& value) {
    text_ += key + " = " + value + "\n";
    lookups_.push_back({section_, key, value, text_.size()});
  }
  void Entry(const std::string& key, size_t value) { Entry(key, std::to_string(value)); }

 private:
  std::string& text_;
  std::vector<Lookup>& lookups_;
  std::string section_;
};

}  // namespace bench
