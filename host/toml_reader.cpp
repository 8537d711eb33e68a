// The typed reading behind equipment.cpp, and the wording of its refusals.
#include "host/toml_reader.h"

#include "host/equipment.h"

namespace sysctx {
namespace {

const char* TypeName(toml::node_type type) {
  switch (type) {
    case toml::node_type::table:
      return "a table";
    case toml::node_type::array:
      return "an array";
    case toml::node_type::string:
      return "a string";
    case toml::node_type::integer:
      return "an integer";
    case toml::node_type::floating_point:
      return "a floating-point number";
    case toml::node_type::boolean:
      return "a boolean";
    default:
      return "a date or time";
  }
}

std::string Expected(const char* what, const toml::node& node) {
  return std::string("expected ") + what + ", found " + TypeName(node.type());
}

}  // namespace

void TomlValue::Refuse(const std::string& what) const {
  throw EquipmentError(file + ":" + std::to_string(node.source().begin.line) + ": key '" + key +
                       "': " + what);
}

int64_t TomlValue::Integer(Range range) const {
  if (!node.is_integer()) {
    Refuse(Expected("an integer", node));
  }
  const int64_t number = node.as_integer()->get();
  if (number < range.lowest || number > range.highest) {
    Refuse(std::to_string(number) + " is not within " + std::to_string(range.lowest) + ".." +
           std::to_string(range.highest));
  }
  return number;
}

std::string TomlValue::String() const {
  if (!node.is_string()) {
    Refuse(Expected("a string", node));
  }
  return node.as_string()->get();
}

const toml::table& TomlValue::Table() const {
  if (!node.is_table()) {
    Refuse(Expected("a table", node));
  }
  return *node.as_table();
}

std::vector<TomlValue> TomlValue::Array() const {
  if (!node.is_array()) {
    Refuse(Expected("an array", node));
  }
  std::vector<TomlValue> elements;
  for (const toml::node& element : *node.as_array()) {
    elements.push_back({element, key + "[" + std::to_string(elements.size()) + "]", file});
  }
  return elements;
}

TomlTable::TomlTable(const TomlValue& value) : value_(value), table_(value.Table()) {}

TomlValue TomlTable::Child(std::string_view key, const toml::node& node) const {
  const std::string prefix = value_.key.empty() ? "" : value_.key + ".";
  return {node, prefix + std::string(key), value_.file};
}

void TomlTable::With(const char* key, const Use& use) {
  known_.insert(key);
  if (const toml::node* node = table_.get(key)) {
    use(Child(key, *node));
  }
}

void TomlTable::WithTable(const char* key, const std::function<void(TomlTable&)>& use) {
  With(key, [&](const TomlValue& value) {
    TomlTable table(value);
    use(table);
    table.RefuseOthers();
  });
}

void TomlTable::WithTables(const char* key, const std::function<void(TomlTable&)>& use) {
  With(key, [&](const TomlValue& value) {
    for (const TomlValue& element : value.Array()) {
      TomlTable table(element);
      use(table);
      table.RefuseOthers();
    }
  });
}

void TomlTable::ForEach(const std::function<void(std::string_view, const TomlValue&)>& use) {
  for (const auto& [key, node] : table_) {
    known_.insert(std::string(key.str()));
    use(key.str(), Child(key.str(), node));
  }
}

TomlValue TomlTable::Required(const char* key) {
  known_.insert(key);
  const toml::node* node = table_.get(key);
  if (node == nullptr) {
    value_.Refuse(std::string("'") + key + "' is missing");
  }
  return Child(key, *node);
}

void TomlTable::RefuseOthers() const {
  const toml::key* first = nullptr;
  for (const auto& [key, node] : table_) {
    if (known_.contains(key.str())) {
      continue;
    }
    if (first == nullptr || key.source().begin < first->source().begin) {
      first = &key;
    }
  }
  if (first == nullptr) {
    return;
  }
  const TomlValue child = Child(first->str(), *table_.get(first->str()));
  throw EquipmentError(child.file + ":" + std::to_string(first->source().begin.line) + ": key '" +
                       child.key + "': unknown key");
}

}  // namespace sysctx
