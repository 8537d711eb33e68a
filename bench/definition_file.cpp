// The files to measure on; see the header.
#include "bench/definition_file.h"

#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace bench {
namespace {

constexpr size_t kLongLine = 600;

// What entries look like: some with a number in the key, as lists have them.
struct EntryPattern {
  const char* key;
  bool numbered;
  size_t value_length;
};
constexpr std::array kEntries = {
    EntryPattern{"SwitchChipLogicPort", true, 3},   EntryPattern{"LogicPortSlot", true, 5},
    EntryPattern{"SupportedMainBoard", true, 16},   EntryPattern{"Name", true, 12},
    EntryPattern{"EquipmentDescription", true, 20}, EntryPattern{"MaxOnuPerPort", true, 4},
};

class Writer {
 public:
  Writer(LineEnd line_end, OddLines odd)
      : line_end_(line_end == LineEnd::kCrLf ? "\r\n" : "\n"), odd_(odd) {}

  void Section(const std::string& name) {
    if (!file_.text.empty()) {
      Line("");
    }
    section_ = name;
    entry_ = 0;
    Line("[" + name + "]");
  }

  // Writes an entry, which may be an odd one, and returns how to look it up.
  Lookup Entry() {
    const EntryPattern& pattern = kEntries[Random(kEntries.size())];
    const std::string key = pattern.key + std::to_string(++entry_);
    return WriteEntry(key, Text(pattern.value_length + Random(4)), NextIsOdd());
  }

  // One that is looked up, and so is ordinary.
  Lookup PlainEntry(const std::string& key) { return WriteEntry(key, Text(8), false); }

  void Comment() { Line("; " + Text(20 + Random(20))); }

  size_t Random(size_t limit) { return random_() % limit; }
  size_t size() const { return file_.text.size(); }
  DefinitionFile& file() { return file_; }

 private:
  void Line(const std::string& text) {
    file_.text += text;
    file_.text += line_end_;
    ++lines_;
  }

  bool NextIsOdd() {
    if (odd_.kind == OddLines::Kind::kNone || lines_ < next_odd_) {
      return false;
    }
    next_odd_ = lines_ + odd_.every;
    return true;
  }

  Lookup WriteEntry(const std::string& key, std::string value, bool is_odd) {
    std::string separator = " = ";
    if (is_odd) {
      ++file_.odd_lines;
      MakeOdd(separator, value);
    }
    Line(key + separator + value);
    return {section_, key, value, file_.text.size()};
  }

  void MakeOdd(std::string& separator, std::string& value) {
    switch (odd_.kind) {
      case OddLines::Kind::kNone:
        break;
      case OddLines::Kind::kLong:
        // "=" everywhere, as the tail is a line of its own.
        while (value.size() < kLongLine) {
          value += ",Port=" + std::to_string(value.size());
        }
        break;
      case OddLines::Kind::kOddByte:
        if (const size_t which = file_.odd_lines % 3; which == 0) {
          value += '\f';
        } else {
          value.insert(value.size() / 2, 1, which == 1 ? '\t' : '\r');
        }
        break;
      case OddLines::Kind::kTabs:
        separator = "\t=\t";
        break;
    }
  }

  std::string Text(size_t length) {
    static constexpr std::string_view kCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-,.";
    std::string text;
    while (text.size() < length) {
      text += kCharacters[Random(kCharacters.size())];
    }
    return text;
  }

  std::string line_end_;
  OddLines odd_;
  std::mt19937 random_;
  DefinitionFile file_;
  std::string section_;
  size_t entry_ = 0;
  size_t lines_ = 0;
  size_t next_odd_ = 0;
};

void WriteFirstSection(Writer& writer) {
  writer.Section("Version");
  writer.file().first = writer.PlainEntry("SupportedSoftwareVer");
}

}  // namespace

DefinitionFile ManySections(size_t bytes, LineEnd line_end, OddLines odd) {
  Writer writer(line_end, odd);
  WriteFirstSection(writer);
  for (size_t section = 1; writer.size() < bytes; ++section) {
    writer.Section("Board_" + std::to_string(section));
    if (writer.Random(4) == 0) {
      writer.Comment();
    }
    for (size_t left = 5 + writer.Random(26); left > 0; --left) {
      writer.Entry();
    }
    const Lookup last = writer.PlainEntry("SwitchChipLogicPortNum");
    if (last.bytes <= bytes / 2) {
      writer.file().middle = last;
    }
    writer.file().last = last;
  }
  return writer.file();
}

DefinitionFile HugeSection(size_t bytes, OddLines odd) {
  Writer writer(LineEnd::kLf, odd);
  WriteFirstSection(writer);
  writer.Section("MainBoard_MCXA");
  while (writer.size() < bytes) {
    const size_t before = writer.size();
    const Lookup entry = writer.Random(20) == 0 ? writer.PlainEntry("Port" + std::to_string(before))
                                                : writer.Entry();
    if (entry.bytes <= bytes / 2) {
      writer.file().middle = entry;
    }
  }
  writer.file().last = writer.PlainEntry("SwitchChipLogicPortNum");
  return writer.file();
}

TemporaryFile::TemporaryFile(std::string_view text) : path_("/tmp/bench.XXXXXX") {
  const int descriptor = mkstemp(path_.data());
  std::FILE* const stream = descriptor < 0 ? nullptr : fdopen(descriptor, "wb");
  if (stream == nullptr) {
    std::perror("temporary file");
    std::exit(1);
  }
  const bool written = std::fwrite(text.data(), 1, text.size(), stream) == text.size();
  if (std::fclose(stream) != 0 || !written) {
    std::perror(path_.c_str());
    std::remove(path_.c_str());
    std::exit(1);
  }
}

TemporaryFile::~TemporaryFile() {
  std::remove(path_.c_str());
}

}  // namespace bench
