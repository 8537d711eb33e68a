// equipment.toml: what is read, and every refusal with its message.
#include "host/equipment.h"

#include <arpa/inet.h>
#include <gmock/gmock.h>

#include <fstream>
#include <ostream>

#include "support/temporary_folder.h"

namespace sysctx {
namespace {

using test::TemporaryFolder;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

Equipment Read(const std::string& text) {
  const TemporaryFolder folder;
  return ReadEquipment(folder.Write("equipment.toml", text));
}

TEST(Equipment, EmptyFileGivesDefaults) {
  const Equipment facts = Read("");
  EXPECT_EQ(facts.device_type, 15);
  EXPECT_EQ(facts.main_card_type, 0);
  EXPECT_EQ(facts.main_card_slot, 0);
  EXPECT_THAT(facts.configured_cards, IsEmpty());
  EXPECT_THAT(facts.card_kinds.pon, IsEmpty());
  EXPECT_THAT(facts.card_kinds.ethernet, IsEmpty());
  EXPECT_THAT(facts.card_kinds.service, IsEmpty());
  EXPECT_THAT(facts.card_kinds.uplink, IsEmpty());
  EXPECT_THAT(facts.fitted_onus, IsEmpty());
  EXPECT_EQ(facts.max_lan_ports, 0u);
  EXPECT_THAT(facts.onu_types, IsEmpty());
  EXPECT_THAT(facts.management_addresses, IsEmpty());
  EXPECT_THAT(facts.outband_addresses, IsEmpty());
  EXPECT_EQ(facts.ftp_port, 21);
  EXPECT_EQ(facts.ftp_timeout_seconds, 10);
}

TEST(Equipment, EveryKeyIsRead) {
  const Equipment facts = Read(R"(
device_type = 20
[main_card]
type = 101
slot = 9
[configured_cards]
"1" = 3101
"801" = 624
[card_kinds]
pon = [3101, 3102]
ethernet = [3201]
service = [3101, 3201]
uplink = [65535]
[[fitted_onu]]
address = [1, 2, 3]
type = 6001
[[fitted_onu]]
address = [1, 2, 4]
type = 6002
[onu_service]
max_lan_ports = 8
[[onu_service.type]]
type = 9001
name = "ONE"
pon_ports = [1]
lan_ports = [1, 2]
pots_ports = [3]
special_ports = [4, 5, 4]
[[onu_service.type]]
type = 9002
name = "TWO"
[upload]
management_addresses = ["192.168.8.1", "192.168.8.2"]
outband_addresses = ["10.10.0.1"]
[ftp]
port = 2121
timeout_seconds = 3
)");
  EXPECT_EQ(facts.device_type, 20);
  EXPECT_EQ(facts.main_card_type, 101);
  EXPECT_EQ(facts.main_card_slot, 9);
  EXPECT_THAT(facts.configured_cards, UnorderedElementsAre(Pair(1, 3101), Pair(801, 624)));
  EXPECT_THAT(facts.card_kinds.pon, ElementsAre(3101, 3102));
  EXPECT_THAT(facts.card_kinds.ethernet, ElementsAre(3201));
  EXPECT_THAT(facts.card_kinds.service, ElementsAre(3101, 3201));
  EXPECT_THAT(facts.card_kinds.uplink, ElementsAre(-1));  // the low 16 bits of 65535
  EXPECT_EQ(facts.fitted_onus.size(), 2u);
  EXPECT_EQ(facts.fitted_onus.at({1, 2, 3}), 6001);
  EXPECT_EQ(facts.fitted_onus.at({1, 2, 4}), 6002);
  EXPECT_EQ(facts.max_lan_ports, 8u);
  ASSERT_EQ(facts.onu_types.size(), 2u);
  EXPECT_EQ(facts.onu_types[0].type, 9001u);
  EXPECT_EQ(facts.onu_types[0].name, "ONE");
  EXPECT_THAT(facts.onu_types[0].pon_ports, ElementsAre(1));
  EXPECT_THAT(facts.onu_types[0].lan_ports, ElementsAre(1, 2));
  EXPECT_THAT(facts.onu_types[0].pots_ports, ElementsAre(3));
  EXPECT_THAT(facts.onu_types[0].special_ports, ElementsAre(4, 5, 4));
  EXPECT_EQ(facts.onu_types[1].type, 9002u);
  EXPECT_THAT(facts.onu_types[1].lan_ports, IsEmpty());
  EXPECT_THAT(facts.management_addresses, ElementsAre(htonl(0xC0A80801), htonl(0xC0A80802)));
  EXPECT_THAT(facts.outband_addresses, ElementsAre(htonl(0x0A0A0001)));
  EXPECT_EQ(facts.ftp_port, 2121);
  EXPECT_EQ(facts.ftp_timeout_seconds, 3);
}

TEST(Equipment, NameOf59CharactersIsTheLongest) {
  const std::string name(59, 'x');
  const Equipment facts = Read("[[onu_service.type]]\ntype = 1\nname = \"" + name + "\"\n");
  ASSERT_EQ(facts.onu_types.size(), 1u);
  EXPECT_EQ(facts.onu_types[0].name, name);
}

struct Refusal {
  const char* name;
  const char* text;
  const char* message;  // behind the file's name
  friend std::ostream& operator<<(std::ostream& out, const Refusal& row) { return out << row.name; }
};

class EquipmentRefusal : public testing::TestWithParam<Refusal> {};

TEST_P(EquipmentRefusal, NamesFileLineAndKey) {
  const TemporaryFolder folder;
  const std::string file = folder.Write("equipment.toml", GetParam().text);
  try {
    ReadEquipment(file);
    FAIL() << "accepted";
  } catch (const EquipmentError& error) {
    EXPECT_EQ(error.what(), file + GetParam().message);
  }
}

constexpr Refusal kRefusals[] = {
    // Unknown keys.
    {"UnknownTopKey", "device_type = 1\ndevice_typ = 1\n", ":2: key 'device_typ': unknown key"},
    {"UnknownTable", "\n[main_cards]\ntype = 1\n", ":2: key 'main_cards': unknown key"},
    {"UnknownMainCardKey", "[main_card]\ntype = 1\nslto = 9\n",
     ":3: key 'main_card.slto': unknown key"},
    {"FirstUnknownOfTwo", "[ftp]\nzeta = 1\nalpha = 1\n", ":2: key 'ftp.zeta': unknown key"},
    {"UnknownCardKind", "[card_kinds]\npons = []\n", ":2: key 'card_kinds.pons': unknown key"},
    {"UnknownFittedOnuKey", "[[fitted_onu]]\naddress = [1, 1, 1]\ntype = 1\nslot = 1\n",
     ":4: key 'fitted_onu[0].slot': unknown key"},
    {"UnknownServiceKey", "[onu_service]\nmax_ports = 1\n",
     ":2: key 'onu_service.max_ports': unknown key"},
    {"UnknownServiceTypeKey",
     "[[onu_service.type]]\ntype = 1\nname = \"A\"\n\n[[onu_service.type]]\ntype = 2\n"
     "name = \"B\"\nports = []\n",
     ":8: key 'onu_service.type[1].ports': unknown key"},
    {"UnknownUploadKey", "[upload]\naddresses = []\n", ":2: key 'upload.addresses': unknown key"},
    {"UnknownFtpKey", "[ftp]\nuser = \"a\"\n", ":2: key 'ftp.user': unknown key"},
    // Other types.
    {"StringForInteger", "device_type = \"15\"\n",
     ":1: key 'device_type': expected an integer, found a string"},
    {"FloatForInteger", "[main_card]\nslot = 9.0\n",
     ":2: key 'main_card.slot': expected an integer, found a floating-point number"},
    {"BooleanForInteger", "[ftp]\nport = true\n",
     ":2: key 'ftp.port': expected an integer, found a boolean"},
    {"DateForInteger", "[ftp]\ntimeout_seconds = 2026-11-20\n",
     ":2: key 'ftp.timeout_seconds': expected an integer, found a date or time"},
    {"IntegerForTable", "main_card = 101\n",
     ":1: key 'main_card': expected a table, found an integer"},
    {"ArrayForTable", "[[upload]]\nmanagement_addresses = []\n",
     ":1: key 'upload': expected a table, found an array"},
    {"TableForArray", "[fitted_onu]\ntype = 1\n",
     ":1: key 'fitted_onu': expected an array, found a table"},
    {"IntegerForArray", "[card_kinds]\nuplink = 3301\n",
     ":2: key 'card_kinds.uplink': expected an array, found an integer"},
    {"IntegerForTableInArray", "fitted_onu = [1]\n",
     ":1: key 'fitted_onu[0]': expected a table, found an integer"},
    {"StringInIntegerArray", "[card_kinds]\npon = [3101,\n  \"3102\"]\n",
     ":3: key 'card_kinds.pon[1]': expected an integer, found a string"},
    {"IntegerForName", "[[onu_service.type]]\ntype = 1\nname = 1\n",
     ":3: key 'onu_service.type[0].name': expected a string, found an integer"},
    {"IntegerForAddress", "[upload]\nmanagement_addresses = [1]\n",
     ":2: key 'upload.management_addresses[0]': expected a string, found an integer"},
    {"StringForCard", "[configured_cards]\n\"1\" = \"GP16A\"\n",
     ":2: key 'configured_cards.1': expected an integer, found a string"},
    // Out of range.
    {"NegativeDeviceType", "device_type = -1\n",
     ":1: key 'device_type': -1 is not within 0..2147483647"},
    {"WideDeviceType", "device_type = 2147483648\n",
     ":1: key 'device_type': 2147483648 is not within 0..2147483647"},
    {"WideMainCardSlot", "[main_card]\nslot = 65536\n",
     ":2: key 'main_card.slot': 65536 is not within 0..65535"},
    {"CardTypeZero", "[configured_cards]\n\"1\" = 0\n",
     ":2: key 'configured_cards.1': 0 is not within 1..2147483647"},
    {"SlotZero", "[configured_cards]\n\"0\" = 1\n",
     ":2: key 'configured_cards.0': the key must be a slot number, 1..65535"},
    {"SlotName", "[configured_cards]\nleft = 1\n",
     ":2: key 'configured_cards.left': the key must be a slot number, 1..65535"},
    {"SlotWithBlank", "[configured_cards]\n\"1 \" = 1\n",
     ":2: key 'configured_cards.1 ': the key must be a slot number, 1..65535"},
    {"SlotTooLarge", "[configured_cards]\n\"65536\" = 1\n",
     ":2: key 'configured_cards.65536': the key must be a slot number, 1..65535"},
    {"WideCardKind", "[card_kinds]\nservice = [65536]\n",
     ":2: key 'card_kinds.service[0]': 65536 is not within 0..65535"},
    {"NegativeAddressPart", "[[fitted_onu]]\naddress = [1, -1, 1]\ntype = 1\n",
     ":2: key 'fitted_onu[0].address[1]': -1 is not within 0..4294967295"},
    {"ShortAddress", "[[fitted_onu]]\naddress = [1, 1]\ntype = 1\n",
     ":2: key 'fitted_onu[0].address': an address has 3 numbers, found 2"},
    {"LongAddress", "[[fitted_onu]]\naddress = [1, 1, 1, 1]\ntype = 1\n",
     ":2: key 'fitted_onu[0].address': an address has 3 numbers, found 4"},
    {"WidePortType", "[[onu_service.type]]\ntype = 1\nname = \"A\"\nlan_ports = [4294967296]\n",
     ":4: key 'onu_service.type[0].lan_ports[0]': 4294967296 is not within 0..4294967295"},
    {"NegativeMaxLan", "[onu_service]\nmax_lan_ports = -1\n",
     ":2: key 'onu_service.max_lan_ports': -1 is not within 0..4294967295"},
    {"EmptyName", "[[onu_service.type]]\ntype = 1\nname = \"\"\n",
     ":3: key 'onu_service.type[0].name': a name has 1 to 59 characters, found 0"},
    {"LongName",
     "[[onu_service.type]]\ntype = 1\n"
     "name = \"123456789012345678901234567890123456789012345678901234567890\"\n",
     ":3: key 'onu_service.type[0].name': a name has 1 to 59 characters, found 60"},
    {"NameWithZeroByte", "[[onu_service.type]]\ntype = 1\nname = \"A\\u0000B\"\n",
     ":3: key 'onu_service.type[0].name': a name holds no zero byte"},
    {"NoDottedAddress", "[upload]\noutband_addresses = [\"10.10.0.1\", \"10.10.0\"]\n",
     ":2: key 'upload.outband_addresses[1]': '10.10.0' is no dotted IPv4 address"},
    {"FtpPortZero", "[ftp]\nport = 0\n", ":2: key 'ftp.port': 0 is not within 1..65535"},
    {"FtpPortTooLarge", "[ftp]\nport = 65536\n",
     ":2: key 'ftp.port': 65536 is not within 1..65535"},
    {"TimeoutZero", "[ftp]\ntimeout_seconds = 0\n",
     ":2: key 'ftp.timeout_seconds': 0 is not within 1..3600"},
    {"TimeoutTooLong", "[ftp]\ntimeout_seconds = 3601\n",
     ":2: key 'ftp.timeout_seconds': 3601 is not within 1..3600"},
    // Missing and repeated.
    {"FittedOnuWithoutType", "[[fitted_onu]]\naddress = [1, 1, 1]\n",
     ":1: key 'fitted_onu[0]': 'type' is missing"},
    {"FittedOnuWithoutAddress", "[[fitted_onu]]\ntype = 1\n",
     ":1: key 'fitted_onu[0]': 'address' is missing"},
    {"ServiceTypeWithoutName", "[[onu_service.type]]\ntype = 1\n",
     ":1: key 'onu_service.type[0]': 'name' is missing"},
    {"ServiceTypeWithoutType", "[[onu_service.type]]\nname = \"A\"\n",
     ":1: key 'onu_service.type[0]': 'type' is missing"},
    {"SlotTwice", "[configured_cards]\n\"1\" = 5\n\"01\" = 6\n",
     ":2: key 'configured_cards.1': slot 1 is given twice"},
    {"AddressTwice",
     "[[fitted_onu]]\naddress = [1, 1, 1]\ntype = 1\n[[fitted_onu]]\naddress = [1, 1, 1]\n"
     "type = 2\n",
     ":5: key 'fitted_onu[1].address': the address is given twice"},
    {"ServiceTypeTwice",
     "[[onu_service.type]]\ntype = 1\nname = \"A\"\n[[onu_service.type]]\ntype = 1\n"
     "name = \"B\"\n",
     ":5: key 'onu_service.type[1].type': type 1 is given twice"},
    {"ServiceNameTwice",
     "[[onu_service.type]]\ntype = 1\nname = \"A\"\n[[onu_service.type]]\ntype = 2\n"
     "name = \"A\"\n",
     ":6: key 'onu_service.type[1].name': name 'A' is given twice"},
};

INSTANTIATE_TEST_SUITE_P(All, EquipmentRefusal, testing::ValuesIn(kRefusals),
                         testing::PrintToStringParamName());

// The words of a syntax error are the parser's; file and line are ours.
TEST(Equipment, SyntaxErrorNamesFileAndLine) {
  const TemporaryFolder folder;
  const std::string file = folder.Write("equipment.toml", "device_type = 15\n[main_card\n");
  try {
    ReadEquipment(file);
    FAIL() << "accepted";
  } catch (const EquipmentError& error) {
    EXPECT_THAT(error.what(), testing::StartsWith(file + ":2: "));
  }
}

TEST(Equipment, KeyTwiceIsASyntaxError) {
  const TemporaryFolder folder;
  const std::string file = folder.Write("equipment.toml", "device_type = 1\ndevice_type = 2\n");
  try {
    ReadEquipment(file);
    FAIL() << "accepted";
  } catch (const EquipmentError& error) {
    EXPECT_THAT(error.what(), testing::StartsWith(file + ":2: "));
  }
}

TEST(Equipment, MissingFile) {
  const TemporaryFolder folder;
  const std::string file = folder.Path("equipment.toml");
  EXPECT_THAT([&] { ReadEquipment(file); },
              testing::ThrowsMessage<EquipmentError>(file + ": No such file or directory"));
}

TEST(Equipment, FolderInPlaceOfTheFile) {
  const TemporaryFolder folder;
  EXPECT_THAT([&] { ReadEquipment(folder.path()); },
              testing::ThrowsMessage<EquipmentError>(folder.path() + ": cannot be read"));
}

TEST(Equipment, EmptyFileIsNoUnreadableFile) {
  EXPECT_NO_THROW(Read(""));
}

}  // namespace
}  // namespace sysctx
