// The whole platform as one object: it records what the library calls and
// answers as the test says. Every test starts with a fresh one.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "sys_context/platform.h"

namespace test {

struct FakePlatform {
  // The fake that the platform functions currently use.
  static FakePlatform& Get();
  // Forgets everything recorded and scripted.
  static void Reset();
  // What was asked since the last call; see `asked`.
  static std::vector<std::string> TakeAsked();
  // What was logged since the last call; see `log`.
  static std::vector<std::string> TakeLog();

  // Command shell: what was installed, in order, and what terminals show.
  struct Installed {
    int32_t node;
    CommandRecord* record;
    std::vector<int32_t> further;  // the numbers that vk_install_element is given
  };
  std::vector<Installed> installed;
  int32_t install_result = 0;         // of install_element
  int32_t vk_install_result = 0;      // of vk_install_element
  std::string terminal;               // all that vty_out wrote
  std::vector<void*> terminals_used;  // the handle of each call of vty_out

  // Module framework: what was registered, and what it answers.
  std::vector<std::string> registered_modules;
  std::vector<std::vector<int32_t>> register_numbers;
  int32_t register_result = 7;
  struct Version {
    int32_t module;
    int32_t number;
    std::string text;
  };
  std::vector<Version> versions;
  int32_t version_result = 0;

  // The platform log: a line for each message, with its module and level: "31 6 text".
  // devmgrModuRegId is 31.
  std::vector<std::string> log;

  // Task delay: the ticks of each call, and how many bytes the terminal showed
  // at that time.
  std::vector<int32_t> delays;
  std::vector<size_t> shown_before_delays;
  void (*on_delay)() = nullptr;

  // Card kinds: the types that are of each, and what the others are answered.
  std::set<int16_t> pon_cards;
  std::set<int16_t> ethernet_cards;
  std::set<int16_t> service_cards;
  std::set<int16_t> uplink_cards;
  int32_t not_of_that_kind = 1;

  // The equipment: its type, its main card and the slot of that, the cards that are
  // configured by slot, and what is answered for other slots. `asked` names every
  // call of these and of the card kinds in order, with its argument: "slot 7",
  // "pon 3102", "ethernet 3201", "device type", "own slot", "main card".
  int32_t device_type = 15;
  int32_t main_card = 0;
  int32_t own_slot = 9;
  std::map<uint32_t, int32_t> configured_cards;
  int32_t no_card = -1;
  std::vector<std::string> asked;

  // The ONU type service: whatever it is asked, it returns `onu_result` and stores its
  // answer first, also when it fails: the number, or the name or list if it is asked
  // for one. `asked` names every call with its arguments: "cs_get_onu_pon_num_by_type
  // 9001", "cs_get_onu_type_by_name KT-G101", "cs_get_supported_onu_max_lan_num".
  int32_t onu_result = -1;
  uint32_t onu_number = 0;
  std::string onu_name;            // "": stores none
  std::vector<uint32_t> onu_list;  // its length is the amount stored
  bool onu_stores = true;          // false: stores nothing

  // The address of an ONU: `asked` names it "onu 1 2 3".
  int32_t fitted_onu = -1;

  // The flash store holds one file, which it gives whatever the name. `asked` names
  // every call: "flash_sizeof NAME", "flash_read NAME LENGTH". A failing read stores
  // nothing.
  std::string flash;
  std::optional<int32_t> flash_size;    // what is told instead of the file's size
  std::optional<int32_t> flash_length;  // what a read stores instead of it
  int32_t flash_read_result = 0;

  // The decompression gives `expanded`, whatever it is given; `asked` names "zUnCompress
  // CAPACITY BYTES", with the compressed bytes. It fails with -5 for a smaller capacity.
  std::string expanded;
  std::optional<uint32_t> expanded_length;  // what is told instead of its length
  int32_t expand_result = 0;

  // FTP: what was uploaded. `asked` names "upload". And the checks of the address:
  // "manage 192.168.8.1", "outband 10.10.0.1".
  struct Upload {
    std::string address;
    std::string user;
    std::string password;
    std::string file;
    std::string content;
    bool operator==(const Upload&) const = default;
  };
  std::vector<Upload> uploads;
  int32_t upload_result = 0;
  int32_t manage_result = 0;
  int32_t outband_result = 0;
};

}  // namespace test
