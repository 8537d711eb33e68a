// Reading of TOML tables with refusals: every key is asked for by name, with a
// type and a range, and what was not asked for is refused.
#pragma once

#include <toml++/toml.h>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace sysctx {

struct Range {
  int64_t lowest;
  int64_t highest;
};

// A value and where it stands: "main_card.type" in which file.
struct TomlValue {
  const toml::node& node;
  std::string key;
  const std::string& file;

  // Throws EquipmentError "FILE:LINE: key 'KEY': WHAT".
  [[noreturn]] void Refuse(const std::string& what) const;

  int64_t Integer(Range range) const;
  std::string String() const;
  const toml::table& Table() const;
  std::vector<TomlValue> Array() const;  // its elements

  template <typename Integer>
  std::vector<Integer> Integers(Range range) const {
    std::vector<Integer> numbers;
    for (const TomlValue& element : Array()) {
      numbers.push_back(static_cast<Integer>(element.Integer(range)));
    }
    return numbers;
  }
};

// One table. The calls below do nothing when the key is absent.
class TomlTable {
 public:
  explicit TomlTable(const TomlValue& value);

  using Use = std::function<void(const TomlValue&)>;
  void With(const char* key, const Use& use);
  void WithTable(const char* key, const std::function<void(TomlTable&)>& use);
  void WithTables(const char* key, const std::function<void(TomlTable&)>& use);  // an array of them

  // Every entry, for tables whose keys are data.
  void ForEach(const std::function<void(std::string_view, const TomlValue&)>& use);

  // The value of a key that must be there.
  TomlValue Required(const char* key);

  // Refuses the first key, in file order, that nobody asked for.
  void RefuseOthers() const;

 private:
  TomlValue Child(std::string_view key, const toml::node& node) const;

  TomlValue value_;
  const toml::table& table_;
  std::set<std::string, std::less<>> known_;
};

}  // namespace sysctx
