// Queries about the optical modules of the large sample.
#include <gmock/gmock.h>

#include <ostream>

#include "host/ask.h"
#include "host/large_sample.h"

namespace sysctx {
namespace {

struct Row {
  const char* name;
  Words words;
  const char* text;
  const char* log;
  friend std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }
};

class OpticalQuery : public LargeSample, public testing::WithParamInterface<Row> {};

TEST_P(OpticalQuery, IsAnswered) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(DescribeAnswer(PrepareQuestion(GetParam().words)()), GetParam().text);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), GetParam().log);
}

const Row kRows[] = {
    {"GponPort",
     {"get_port_optmodule_thresinfo", "1", "16", "2", "1"},
     "code = 0\npathCount = 1\npaths = inup -1200, indn -3200, outup 700, outdn 300\n",
     ""},
    {"ComboPort",
     {"get_port_optmodule_thresinfo", "4", "1", "1", "4"},
     "code = 0\npathCount = 2\n"
     "paths = inup -800, indn -2800, outup 500, outdn 150;"
     " inup -500, indn -2600, outup 500, outdn 200\n",
     ""},
    {"UplinkPort",
     {"get_port_optmodule_thresinfo", "19", "4", "2", "65535"},
     "code = 0\npathCount = 1\npaths = inup -100, indn -1580, outup 400, outdn -470\n",
     ""},
    {"UplinkPortWith25G",
     {"get_port_optmodule_thresinfo", "20", "1", "1", "4"},
     "code = 0\npathCount = 1\npaths = inup 200, indn -1330, outup 200, outdn -700\n",
     ""},
    {"TooFewEntries",
     {"get_port_optmodule_thresinfo", "4", "1", "1", "1"},
     "code = -35\npathCount = 1\npaths = (untouched)\n",
     "log devmgr level 6: get_port_optmodule_thresinfo:get thresinfo failed, curnum = 2,"
     " inputnum 1 is less.\n"},
    {"NoEntries",
     {"get_port_optmodule_thresinfo", "4", "1", "1", "0"},
     "code = -35\npathCount = 0\npaths =\n",
     "log devmgr level 6: get_port_optmodule_thresinfo:get thresinfo failed, curnum = 2,"
     " inputnum 0 is less.\n"},
    {"UnknownPhyType",
     {"get_port_optmodule_thresinfo", "4", "1", "9", "4"},
     "code = -1\npathCount = 4\npaths = (untouched)\n",
     "log devmgr level 6: get_port_optmodule_thresinfo:get thresinfo failed, kind = 1,"
     " porttype = 7, phytype = 9.\n"},
    {"UnknownPort",
     {"get_port_optmodule_thresinfo", "4", "17", "1", "4"},
     "code = -5\npathCount = 4\npaths = (untouched)\n",
     ""},
    {"CardWithoutOpticalPorts",
     {"get_port_optmodule_thresinfo", "7", "1", "1", "4"},
     "code = -102\npathCount = 4\npaths = (untouched)\n",
     ""},
    {"GponOnu",
     {"get_onu_optmodule_thresinfo", "1", "1", "1", "1", "1"},
     "code = 0\npathCount = 1\npaths = inup -800, indn -2700, outup 500, outdn 50\n",
     ""},
    {"OnusPhyTypeIsNotLookedAt",
     {"get_onu_optmodule_thresinfo", "14", "8", "1", "65535", "4"},
     "code = 0\npathCount = 1\npaths = inup -1000, indn -2850, outup 562, outdn 62\n",
     ""},
    {"NoOnu",
     {"get_onu_optmodule_thresinfo", "1", "1", "9", "1", "1"},
     "code = -1\npathCount = 1\npaths = (untouched)\n",
     ""},
};

INSTANTIATE_TEST_SUITE_P(All, OpticalQuery, testing::ValuesIn(kRows),
                         testing::PrintToStringParamName());

using OpticalNumber = LargeSample;

TEST_F(OpticalNumber, IsLimited) {
  EXPECT_THAT(
      [] {
        PrepareQuestion({"get_port_optmodule_thresinfo", "4", "1", "1", "65536"});
      },
      testing::ThrowsMessage<BadQuestion>(
          "bad pathCount '65536': a number from 0 to 65535 is wanted\n"
          "usage: sysctx ask get_port_optmodule_thresinfo slot port phyType pathCount\n"));
}

}  // namespace
}  // namespace sysctx
