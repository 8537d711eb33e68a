// What the equipment knows about itself: the facts that the platform functions
// answer with, as they stand in equipment.toml.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace sysctx {

// An ONU type that only the ONU type service knows. Ports are port types, port
// 1 first.
struct ServiceOnuType {
  uint32_t type = 0;
  std::string name;
  std::vector<uint32_t> pon_ports;
  std::vector<uint32_t> lan_ports;
  std::vector<uint32_t> pots_ports;
  std::vector<uint32_t> special_ports;
};

struct CardKinds {
  std::vector<int16_t> pon;
  std::vector<int16_t> ethernet;
  std::vector<int16_t> service;
  std::vector<int16_t> uplink;
};

struct Equipment {
  int32_t device_type = 15;
  int32_t main_card_type = 0;
  int32_t main_card_slot = 0;
  std::map<uint32_t, int32_t> configured_cards;  // by slot
  CardKinds card_kinds;
  std::map<std::array<uint32_t, 3>, int32_t> fitted_onus;  // type by address
  uint32_t max_lan_ports = 0;
  std::vector<ServiceOnuType> onu_types;
  std::vector<uint32_t> management_addresses;  // network byte order
  std::vector<uint32_t> outband_addresses;     // network byte order
  uint16_t ftp_port = 21;
  int32_t ftp_timeout_seconds = 10;
};

// Says file, line and key in its text.
class EquipmentError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Reads an equipment.toml. Keys that are unknown, of another type, out of range
// or given twice are refused with an EquipmentError, as is a file that cannot
// be read.
Equipment ReadEquipment(const std::string& file);

// The facts that the platform functions answer with. Set before there are
// threads, then only read.
void SetEquipment(Equipment equipment);
const Equipment& TheEquipment();

}  // namespace sysctx
