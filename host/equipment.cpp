// The keys of equipment.toml, one function per table.
#include "host/equipment.h"

#include <arpa/inet.h>
#include <sys/stat.h>

#include <cerrno>
#include <charconv>
#include <cstring>
#include <fstream>
#include <utility>

#include "host/toml_reader.h"

namespace sysctx {
namespace {

constexpr Range kTypes = {0, INT32_MAX};
constexpr Range kPortTypes = {0, UINT32_MAX};
constexpr Range kSlots = {1, 65535};
constexpr Range kNoSlotOrSlots = {0, 65535};
constexpr Range kCardKindTypes = {0, UINT16_MAX};
constexpr Range kAddressParts = {0, UINT32_MAX};
constexpr Range kLanPorts = {0, UINT32_MAX};
constexpr Range kTcpPorts = {1, 65535};
constexpr Range kTimeoutSeconds = {1, 3600};
constexpr size_t kLongestOnuName = 59;
constexpr size_t kMostPorts = 1024;

void ReadMainCard(TomlTable& table, Equipment& equipment) {
  table.With("type", [&](const TomlValue& value) {
    equipment.main_card_type = static_cast<int32_t>(value.Integer(kTypes));
  });
  table.With("slot", [&](const TomlValue& value) {
    equipment.main_card_slot = static_cast<int32_t>(value.Integer(kNoSlotOrSlots));
  });
}

uint32_t SlotOfKey(std::string_view key, const TomlValue& value) {
  uint32_t slot = 0;
  const char* end = key.data() + key.size();
  const auto [rest, error] = std::from_chars(key.data(), end, slot);
  if (error != std::errc() || rest != end || slot < kSlots.lowest || slot > kSlots.highest) {
    value.Refuse("the key must be a slot number, 1..65535");
  }
  return slot;
}

void ReadConfiguredCards(TomlTable& table, Equipment& equipment) {
  table.ForEach([&](std::string_view key, const TomlValue& value) {
    const uint32_t slot = SlotOfKey(key, value);
    const int32_t type = static_cast<int32_t>(value.Integer({1, INT32_MAX}));
    if (!equipment.configured_cards.emplace(slot, type).second) {
      value.Refuse("slot " + std::to_string(slot) + " is given twice");
    }
  });
}

void ReadCardKinds(TomlTable& table, CardKinds& kinds) {
  const auto read = [&](const char* key, std::vector<int16_t>& list) {
    table.With(key, [&](const TomlValue& value) {
      list = value.Integers<int16_t>(kCardKindTypes);  // asked for by their low 16 bits
    });
  };
  read("pon", kinds.pon);
  read("ethernet", kinds.ethernet);
  read("service", kinds.service);
  read("uplink", kinds.uplink);
}

void ReadFittedOnu(TomlTable& table, Equipment& equipment) {
  const TomlValue address = table.Required("address");
  const std::vector<uint32_t> parts = address.Integers<uint32_t>(kAddressParts);
  if (parts.size() != 3) {
    address.Refuse("an address has 3 numbers, found " + std::to_string(parts.size()));
  }
  const int32_t type = static_cast<int32_t>(table.Required("type").Integer(kTypes));
  if (!equipment.fitted_onus.emplace(std::array{parts[0], parts[1], parts[2]}, type).second) {
    address.Refuse("the address is given twice");
  }
}

std::vector<uint32_t> ReadPorts(const TomlValue& value) {
  std::vector<uint32_t> ports = value.Integers<uint32_t>(kPortTypes);
  if (ports.size() > kMostPorts) {
    value.Refuse("more than " + std::to_string(kMostPorts) + " ports");
  }
  return ports;
}

std::string ReadOnuName(const TomlValue& value) {
  std::string name = value.String();
  if (name.empty() || name.size() > kLongestOnuName) {
    value.Refuse("a name has 1 to 59 characters, found " + std::to_string(name.size()));
  }
  if (name.find('\0') != std::string::npos) {
    value.Refuse("a name holds no zero byte");
  }
  return name;
}

void ReadServiceOnuType(TomlTable& table, Equipment& equipment) {
  ServiceOnuType onu;
  const TomlValue type = table.Required("type");
  onu.type = static_cast<uint32_t>(type.Integer(kTypes));
  const TomlValue name = table.Required("name");
  onu.name = ReadOnuName(name);
  table.With("pon_ports", [&](const TomlValue& value) { onu.pon_ports = ReadPorts(value); });
  table.With("lan_ports", [&](const TomlValue& value) { onu.lan_ports = ReadPorts(value); });
  table.With("pots_ports", [&](const TomlValue& value) { onu.pots_ports = ReadPorts(value); });
  table.With("special_ports",
             [&](const TomlValue& value) { onu.special_ports = ReadPorts(value); });
  for (const ServiceOnuType& other : equipment.onu_types) {
    if (other.type == onu.type) {
      type.Refuse("type " + std::to_string(onu.type) + " is given twice");
    }
    if (other.name == onu.name) {
      name.Refuse("name '" + onu.name + "' is given twice");
    }
  }
  equipment.onu_types.push_back(std::move(onu));
}

void ReadOnuService(TomlTable& table, Equipment& equipment) {
  table.With("max_lan_ports", [&](const TomlValue& value) {
    equipment.max_lan_ports = static_cast<uint32_t>(value.Integer(kLanPorts));
  });
  table.WithTables("type", [&](TomlTable& type) { ReadServiceOnuType(type, equipment); });
}

std::vector<uint32_t> ReadAddresses(const TomlValue& value) {
  std::vector<uint32_t> addresses;
  for (const TomlValue& element : value.Array()) {
    const std::string text = element.String();
    in_addr address = {};
    if (inet_pton(AF_INET, text.c_str(), &address) != 1) {
      element.Refuse("'" + text + "' is no dotted IPv4 address");
    }
    addresses.push_back(address.s_addr);
  }
  return addresses;
}

void ReadUpload(TomlTable& table, Equipment& equipment) {
  table.With("management_addresses", [&](const TomlValue& value) {
    equipment.management_addresses = ReadAddresses(value);
  });
  table.With("outband_addresses",
             [&](const TomlValue& value) { equipment.outband_addresses = ReadAddresses(value); });
}

void ReadFtp(TomlTable& table, Equipment& equipment) {
  table.With("port", [&](const TomlValue& value) {
    equipment.ftp_port = static_cast<uint16_t>(value.Integer(kTcpPorts));
  });
  table.With("timeout_seconds", [&](const TomlValue& value) {
    equipment.ftp_timeout_seconds = static_cast<int32_t>(value.Integer(kTimeoutSeconds));
  });
}

toml::table Parse(const std::string& file) {
  struct stat status = {};
  if (stat(file.c_str(), &status) != 0) {
    throw EquipmentError(file + ": " + strerror(errno));
  }
  std::ifstream stream(file, std::ios::binary);
  if (!S_ISREG(status.st_mode) || !stream.is_open()) {
    throw EquipmentError(file + ": cannot be read");
  }
  try {
    return toml::parse(stream, file);
  } catch (const toml::parse_error& error) {
    throw EquipmentError(file + ":" + std::to_string(error.source().begin.line) + ": " +
                         std::string(error.description()));
  }
}

}  // namespace

Equipment ReadEquipment(const std::string& file) {
  const toml::table parsed = Parse(file);
  Equipment equipment;
  TomlTable top(TomlValue{parsed, "", file});
  top.With("device_type", [&](const TomlValue& value) {
    equipment.device_type = static_cast<int32_t>(value.Integer(kTypes));
  });
  top.WithTable("main_card", [&](TomlTable& table) { ReadMainCard(table, equipment); });
  top.WithTable("configured_cards",
                [&](TomlTable& table) { ReadConfiguredCards(table, equipment); });
  top.WithTable("card_kinds",
                [&](TomlTable& table) { ReadCardKinds(table, equipment.card_kinds); });
  top.WithTables("fitted_onu", [&](TomlTable& table) { ReadFittedOnu(table, equipment); });
  top.WithTable("onu_service", [&](TomlTable& table) { ReadOnuService(table, equipment); });
  top.WithTable("upload", [&](TomlTable& table) { ReadUpload(table, equipment); });
  top.WithTable("ftp", [&](TomlTable& table) { ReadFtp(table, equipment); });
  top.RefuseOthers();
  return equipment;
}

namespace {

Equipment& Facts() {
  static Equipment facts;
  return facts;
}

}  // namespace

void SetEquipment(Equipment equipment) {
  Facts() = std::move(equipment);
}

const Equipment& TheEquipment() {
  return Facts();
}

}  // namespace sysctx
