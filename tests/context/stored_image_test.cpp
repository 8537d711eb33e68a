// Stored images, plain and compressed, as text.
#include <cstdint>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include "support/tables.h"
#include "support/text.h"

namespace {

using std::string;
using test::FakePlatform;
using test::Names;

constexpr char kNullArgument[] = "\r\nread_compress_context_file err! input is null.";
constexpr uint32_t kCapacity = 20;  // as it is told
constexpr size_t kRoom = 40;        // in fact

// What a call returns and stores. The destination is '#' before it.
struct Result {
  int32_t code;
  uint32_t length;
  string destination;
};

Result Expand(const string& image) {
  const std::vector<uint8_t> bytes(image.begin(), image.end());  // with nothing behind them
  const uint8_t nothing = 0;
  Result result = {0, kCapacity, string(kRoom, '#')};
  result.code = read_compress_context_file(
      bytes.empty() ? &nothing : bytes.data(), static_cast<uint32_t>(bytes.size()),
      reinterpret_cast<uint8_t*>(result.destination.data()), &result.length);
  return result;
}

string Filled(const string& text) {
  return text + string(kRoom - text.size(), '#');
}

struct ImageRow {
  const char* name;
  string image;
  friend std::ostream& operator<<(std::ostream& out, const ImageRow& row) {
    return out << row.name;
  }
};

class StoredImage : public test::LibraryTest {
 protected:
  test::Console console_;
};

// ---- Plain -----------------------------------------------------------------------

class PlainImage : public StoredImage, public testing::WithParamInterface<ImageRow> {};

TEST_P(PlainImage, IsCopied) {
  const string& image = GetParam().image;
  for (const int32_t debug : {0, 1}) {
    SCOPED_TRACE(testing::Message() << "debug " << debug);
    ddDebugPrint = debug;
    const Result result = Expand(image);
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.length, image.size());
    EXPECT_EQ(result.destination, Filled(image));
    EXPECT_EQ(FakePlatform::TakeAsked(), Names());
    EXPECT_EQ(console_.Text(), "");
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    , PlainImage,
    testing::Values(ImageRow{"Empty", ""}, ImageRow{"OneByte", "z"}, ImageRow{"TwoBytes", "zi"},
                    ImageRow{"Three", "abc"}, ImageRow{"OtherThird", "zio"},
                    ImageRow{"OtherSecond", "zap"}, ImageRow{"OtherFirst", "rip"},
                    ImageRow{"OtherThirdOfMany", "zi-p12345"}, ImageRow{"CapitalFirst", "Zip12"},
                    ImageRow{"CapitalSecond", "zIp12"}, ImageRow{"CapitalThird", "ziP12"},
                    ImageRow{"MarkBehindABlank", " zip12"}, ImageRow{"MarkAtTheEnd", "[A]\nzip"},
                    ImageRow{"ZeroBytes", string("\0zip\0\xff\0", 7)},
                    ImageRow{"LargerThanTheCapacity", string(21, 'x')}),
    testing::PrintToStringParamName());

TEST_F(StoredImage, MarkThatIsNotAllOfTheImageIsPlain) {
  for (uint32_t length = 0; length < 3; ++length) {
    const string image = "zip12345";
    string destination(kRoom, '#');
    uint32_t text_length = kCapacity;
    EXPECT_EQ(
        read_compress_context_file(reinterpret_cast<const uint8_t*>(image.data()), length,
                                   reinterpret_cast<uint8_t*>(destination.data()), &text_length),
        0);
    EXPECT_EQ(text_length, length);
    EXPECT_EQ(destination, Filled(image.substr(0, length)));
    EXPECT_EQ(FakePlatform::TakeAsked(), Names());
  }
}

// ---- Compressed ------------------------------------------------------------------

class CompressedImage : public StoredImage, public testing::WithParamInterface<ImageRow> {};

// Expanding gets the capacity and what is behind the mark.
TEST_P(CompressedImage, IsExpanded) {
  const string& compressed = GetParam().image;
  for (const int32_t debug : {0, 1}) {
    SCOPED_TRACE(testing::Message() << "debug " << debug);
    ddDebugPrint = debug;
    for (const string& text : {string(), string("K\0T", 3), string(kCapacity, 'x')}) {
      FakePlatform::Get().expanded = text;
      const Result result = Expand("zip" + compressed);
      EXPECT_EQ(result.code, 0);
      EXPECT_EQ(result.length, text.size());
      EXPECT_EQ(result.destination, Filled(text));
      EXPECT_EQ(FakePlatform::TakeAsked(), Names{"zUnCompress 20 " + compressed});
      EXPECT_EQ(console_.Text(), "");
      if (HasFailure()) {
        return;  // its words are on the caught console as well
      }
    }
  }
}

TEST_P(CompressedImage, HasTheDecompressorsCode) {
  const string& compressed = GetParam().image;
  for (const int32_t debug : {0, 1}) {
    SCOPED_TRACE(testing::Message() << "debug " << debug);
    ddDebugPrint = debug;
    for (const int32_t code : {-1, -3, 1, 7, std::numeric_limits<int32_t>::min()}) {
      FakePlatform::Get().expand_result = code;
      const Result result = Expand("zip" + compressed);
      EXPECT_EQ(result.code, code);
      EXPECT_EQ(result.length, kCapacity);
      EXPECT_EQ(result.destination, Filled(""));
      EXPECT_EQ(FakePlatform::TakeAsked(), Names{"zUnCompress 20 " + compressed});
      EXPECT_EQ(console_.Text(), "");
      if (HasFailure()) {
        return;  // its words are on the caught console as well
      }
    }
  }
}

TEST_P(CompressedImage, DoesNotFit) {
  FakePlatform::Get().expanded = string(kCapacity + 1, 'x');
  const Result result = Expand("zip" + GetParam().image);
  EXPECT_EQ(result.code, -5);
  EXPECT_EQ(result.length, kCapacity);
  EXPECT_EQ(result.destination, Filled(""));
}

INSTANTIATE_TEST_SUITE_P(, CompressedImage,
                         testing::Values(ImageRow{"MarkAlone", ""}, ImageRow{"OneByte", "X"},
                                         ImageRow{"SecondMark", "zip1"},
                                         ImageRow{"ZeroBytes", string("\0\x01\xff\0", 4)},
                                         ImageRow{"LargerThanTheCapacity", string(30, 'c')}),
                         testing::PrintToStringParamName());

// ---- Nothing ---------------------------------------------------------------------

TEST_F(StoredImage, NullArgumentsAreRefused) {
  constexpr unsigned kAll = 7;
  for (const int32_t debug : {0, 1}) {
    SCOPED_TRACE(testing::Message() << "debug " << debug);
    ddDebugPrint = debug;
    for (const char* const image : {"zip1", "[A]\n", ""}) {
      for (unsigned given = 0; given < kAll; ++given) {
        string destination(kRoom, '#');
        uint32_t length = kCapacity;
        EXPECT_EQ(read_compress_context_file(
                      (given & 1) != 0 ? reinterpret_cast<const uint8_t*>(image) : nullptr,
                      static_cast<uint32_t>(std::char_traits<char>::length(image)),
                      (given & 2) != 0 ? reinterpret_cast<uint8_t*>(destination.data()) : nullptr,
                      (given & 4) != 0 ? &length : nullptr),
                  -2);
        EXPECT_EQ(console_.Text(), debug != 0 ? kNullArgument : "") << "given, as bits: " << given;
        EXPECT_EQ(destination, Filled(""));
        EXPECT_EQ(length, kCapacity);
        EXPECT_EQ(FakePlatform::TakeAsked(), Names());
        if (HasFailure()) {
          return;  // its words are on the caught console as well
        }
      }
    }
  }
}

}  // namespace
