// Every allocation of a whole start with everything shown fails.
#include <string>

#include "faults/sweep.h"

namespace faults {
namespace {

class Allocations : public Sweep, public testing::WithParamInterface<Times> {
 protected:
  // Makes allocation number `number` fail, and with kForEver those behind it.
  void Fail(int number) {
    SCOPED_TRACE(number);
    const bool once = GetParam() == Times::kOnce;
    const Prediction prediction = Predict(
        [=](const Event& event) {
          return event.is_allocation && (once ? event.number == number : event.number >= number);
        },
        0);
    Tape::Get().Replay(Tape::kNone, Tape::kNone);
    const Fault fault = {&test::Faults::allocations, number, GetParam()};
    EXPECT_EQ(Start(fault, prediction, Then::kShow), 0);
  }
};

TEST_P(Allocations, EachFails) {
  const CleanStart& clean = CleanStart::Get();
  EXPECT_GT(clean.start_allocations, 1000);
  EXPECT_EQ(clean.allocations, clean.start_allocations + 6);  // for the file that is in flash
  for (int number = 1; number <= clean.allocations && !HasFailure(); ++number) {
    Fail(number);
  }
  Tell("allocations");
}

// What the terminal is told of the file in flash, shown and then uploaded, without the
// buffer number 1 to 6: two each, and two of ddReadContextFileToBuf, which tells the console.
constexpr char kShown[] = "\r\n[Version]\nSupportedSoftwareVer=KT2200V4.0\n\r\n";
constexpr char kWait[] = "\r\nThis will need seconds of time, please wait...\r\n";
constexpr char kUploaded[] = "Upload the context file success!\r\n";
constexpr char kNoImageToShow[] = "\r\nddPrintContextFile: no enough memory for ftp buffer.\r\n";
constexpr char kNoTextToShow[] =
    "ddPrintContextFile:no enough memory for uncompress context buffer.\r\n";
constexpr char kNoImageToUpload[] = "\r\nddUploadContextFile:no enough memory for ftp buffer.\r\n";
constexpr char kNoTextToUpload[] =
    "ddUploadContextFile:no enough memory for uncompress context buffer.\r\n";

struct Told {
  std::string once;
  std::string for_ever;
};

TEST_P(Allocations, OfTheFileInFlashAreTold) {
  const std::string shown = kShown;
  const Told rows[] = {
      {kNoImageToShow + (kWait + std::string(kUploaded)),
       kNoImageToShow + (kWait + std::string(kNoImageToUpload))},
      {kNoTextToShow + (kWait + std::string(kUploaded)),
       kNoTextToShow + (kWait + std::string(kNoImageToUpload))},
      {shown + kWait + kNoImageToUpload, shown + kWait + kNoImageToUpload},
      {shown + kWait + kNoTextToUpload, shown + kWait + kNoTextToUpload},
      {shown + kWait + kUploaded, shown + kWait + kUploaded},
      {shown + kWait + kUploaded, shown + kWait + kUploaded},
  };
  int number = CleanStart::Get().start_allocations;
  for (const Told& row : rows) {
    Fail(++number);
    const std::string& told = GetParam() == Times::kOnce ? row.once : row.for_ever;
    EXPECT_EQ(test::FakePlatform::Get().terminal, told) << number;
  }
}

std::string NameOf(const testing::TestParamInfo<Times>& times) {
  return times.param == Times::kOnce ? "Once" : "ForEver";
}
INSTANTIATE_TEST_SUITE_P(, Allocations, testing::Values(Times::kOnce, Times::kForEver), NameOf);

}  // namespace
}  // namespace faults
