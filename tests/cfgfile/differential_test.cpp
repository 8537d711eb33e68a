// The lookups and the line reader, held against the plain reader on generated
// files: the same code, value, line globals and reported offset.
#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <cstdio>
#include <cstring>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "cfgfile/generated_files.h"
#include "cfgfile/library_answer.h"
#include "cfgfile/plain_reader.h"
#include "support/definition_file.h"
#include "support/faults.h"
#include "sys_context/cfgfile.h"

namespace {

using generated::Kind;
using generated::kKinds;
using generated::Random;

constexpr char kMemoryPath[] = "memory";
constexpr char kUntouched = '\x5A';
constexpr int32_t kMaxima[] = {1, 2, 5, 511, 512, 513};

std::string Escaped(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) {
    char piece[8];
    if (c == '\n') {
      text += "\\n";
    } else if (c == '\\' || c == '"') {
      text += std::string("\\") + c;
    } else if (c >= ' ' && c <= '~') {
      text += c;
    } else {
      // Three octal digits: what follows cannot be taken for a part of it.
      std::snprintf(piece, sizeof piece, "\\%03o", static_cast<unsigned>(static_cast<uint8_t>(c)));
      text += piece;
    }
  }
  return '"' + text + '"';
}

std::string Show(const plain::Answer& answer) {
  return "code " + std::to_string(answer.code) + ", value " +
         (answer.value ? Escaped(*answer.value) : "-") + ", offset " +
         (answer.offset ? std::to_string(*answer.offset) : "-") + ", section line " +
         std::to_string(answer.section_line_no) + ", key line " +
         std::to_string(answer.key_line_no) + ", lines " + std::to_string(answer.key_lines);
}

struct Question {
  std::string section;
  std::string key;
  int32_t offset_in = 0;
  bool with_offset = true;  // CFG_get_key_offset or CFG_get_key
};

std::string Show(const Question& question) {
  return "section " + Escaped(question.section) + ", key " + Escaped(question.key) +
         (question.with_offset ? ", from " + std::to_string(question.offset_in) : "");
}

plain::Answer Ask(const char* path, const Question& question) {
  return plain::AnswerOfLibrary(
      path, question.section.c_str(), question.key.c_str(),
      question.with_offset ? std::optional(question.offset_in) : std::nullopt);
}

// The files of a test, which are in memory unless a path says otherwise.
class Comparison {
 public:
  // Empty when library and plain reader agree.
  std::string Difference(std::string_view bytes, const Question& question,
                         const char* path = kMemoryPath) {
    faults_.contents[kMemoryPath] = bytes;
    plain::Answer expected =
        plain::Lookup(bytes, question.section, question.key, question.offset_in);
    if (!question.with_offset) {
      expected.offset.reset();
    }
    const int opens = faults_.opens.count();
    const int closes = faults_.closes;
    const int reads = faults_.reads.count();
    const plain::Answer actual = Ask(path, question);
    if (!(actual == expected)) {
      return "expected " + Show(expected) + "\n  actual " + Show(actual);
    }
    if (faults_.opens.count() != opens + 1 || faults_.closes != closes + 1) {
      return "not opened and closed once";
    }
    if (faults_.reads.count() - reads > static_cast<int>(bytes.size() / 4096) + 2) {
      return "too many reads: " + std::to_string(faults_.reads.count() - reads);
    }
    return "";
  }

  // The same for fgetline, on every line of a file.
  std::string LineDifference(std::string_view bytes, int32_t maximum) {
    faults_.contents[kMemoryPath] = bytes;
    FILE* const stream = std::fopen(kMemoryPath, "rb");
    plain::File plain_file(bytes);
    std::string difference;
    for (int32_t length = 0; length >= 0 && difference.empty();) {
      std::string line;
      const int32_t expected = plain_file.ReadLine(line, maximum);
      const size_t size = line.size();
      std::array<char, 515> buffer;
      buffer[size] = buffer[size + 1] = kUntouched;
      length = fgetline(stream, buffer.data(), maximum);
      if (length != expected) {
        difference = "expected " + std::to_string(expected) + ", got " + std::to_string(length);
      } else if (length >= 0 &&
                 (std::memcmp(buffer.data(), line.data(), size) != 0 || buffer[size] != '\0')) {
        difference = "expected " + Escaped(line) + ", got " + Escaped(buffer.data());
      } else if (length >= 0 && buffer[size + 1] != kUntouched) {
        difference = "written behind the terminator of " + Escaped(line);
      }
    }
    std::fclose(stream);
    return difference;
  }

  // Leaves out pieces of a file for as long as a difference remains.
  template <typename Differs>
  static std::string Reduced(std::string bytes, Differs differs) {
    for (size_t piece = bytes.size(); piece > 0; piece /= 2) {
      for (size_t place = 0; place + piece <= bytes.size();) {
        std::string shorter = bytes;
        shorter.erase(place, piece);
        if (differs(shorter)) {
          bytes = std::move(shorter);
        } else {
          place += piece;
        }
      }
    }
    return bytes;
  }

 private:
  test::Faults faults_;
};

// Asks one question; a failure shows all that is needed to repeat it.
bool Agree(Comparison& comparison, const std::string& bytes, const Question& question,
           uint64_t seed) {
  const std::string difference = comparison.Difference(bytes, question);
  if (difference.empty()) {
    return true;
  }
  const std::string reduced = Comparison::Reduced(bytes, [&](const std::string& shorter) {
    return !comparison.Difference(shorter, question).empty();
  });
  ADD_FAILURE() << "seed " << seed << ", " << Show(question) << "\n"
                << difference << "\nfile " << Escaped(bytes) << "\nreduced to " << Escaped(reduced)
                << "\n"
                << comparison.Difference(reduced, question);
  return false;
}

bool LinesAgree(Comparison& comparison, const std::string& bytes, int32_t maximum, uint64_t seed) {
  const std::string difference = comparison.LineDifference(bytes, maximum);
  if (difference.empty()) {
    return true;
  }
  const std::string reduced = Comparison::Reduced(bytes, [&](const std::string& shorter) {
    return !comparison.LineDifference(shorter, maximum).empty();
  });
  ADD_FAILURE() << "seed " << seed << ", fgetline of at most " << maximum << "\n"
                << difference << "\nfile " << Escaped(bytes) << "\nreduced to " << Escaped(reduced);
  return false;
}

Question RandomQuestion(Random& random, size_t size) {
  Question question{.section = std::string(generated::SectionName(random)),
                    .key = std::string(generated::KeyName(random))};
  question.with_offset = random.OneIn(2);
  if (question.with_offset && random.OneIn(2)) {
    question.offset_in = static_cast<int32_t>(random.Below(size + 3));
  }
  return question;
}

// Every check of one file; false once something differed.
bool CheckFile(Comparison& comparison, const Kind& kind, uint64_t seed) {
  Random random(seed);
  const std::string bytes = kind.make(random);
  for (int i = 0; i < 5; ++i) {
    if (!Agree(comparison, bytes, RandomQuestion(random, bytes.size()), seed)) {
      return false;
    }
  }
  if (bytes.size() < 48 && random.OneIn(3)) {
    Question question = RandomQuestion(random, bytes.size());
    question.with_offset = true;
    for (size_t offset = 0; offset <= bytes.size() + 2; ++offset) {
      question.offset_in = static_cast<int32_t>(offset);
      if (!Agree(comparison, bytes, question, seed)) {
        return false;
      }
    }
  }
  for (const int32_t maximum : kMaxima) {
    // Large files hold many lines: one or two of the maxima do for each.
    if (bytes.size() > 4000 && !random.OneIn(4)) {
      continue;
    }
    if (!LinesAgree(comparison, bytes, maximum, seed)) {
      return false;
    }
  }
  return true;
}

class Differential : public testing::TestWithParam<size_t> {
 protected:
  const Kind& kind() const { return kKinds[GetParam()]; }
  uint64_t Seed(int number) const { return generated::SeedOf(GetParam(), number); }
};

TEST_P(Differential, AgreesWithThePlainReader) {
  Comparison comparison;
  for (int number = 0; number < kind().files; ++number) {
    ASSERT_TRUE(CheckFile(comparison, kind(), Seed(number)));
  }
}

TEST_P(Differential, AgreesOnFilesOfTheFileSystem) {
  Comparison comparison;
  for (int number = 0; number < 700; ++number) {
    const uint64_t seed = Seed(number);
    Random random(seed);
    const std::string bytes = kind().make(random);
    const test::DefinitionFile file(bytes);
    for (int i = 0; i < 3; ++i) {
      const Question question = RandomQuestion(random, bytes.size());
      ASSERT_EQ(comparison.Difference(bytes, question, file.path()), "")
          << "seed " << seed << ", " << Show(question) << "\nfile " << Escaped(bytes);
    }
  }
}

std::string KindName(const testing::TestParamInfo<size_t>& kind) {
  return kKinds[kind.param].name;
}

INSTANTIATE_TEST_SUITE_P(Files, Differential, testing::Range<size_t>(0, kKinds.size()), KindName);

// The generated files are worth something only while they bring up everything.
TEST(GeneratedFiles, BringUpEveryCode) {
  std::map<int32_t, int> amount;
  int total = 0;
  for (size_t kind = 0; kind < kKinds.size(); ++kind) {
    total += kKinds[kind].files;
    for (int number = 0; number < 400; ++number) {
      Random random(generated::SeedOf(kind, number));
      const std::string bytes = kKinds[kind].make(random);
      const Question question = RandomQuestion(random, bytes.size());
      ++amount[plain::Lookup(bytes, question.section, question.key, question.offset_in).code];
    }
  }
  EXPECT_GE(total, 100'000);
  for (const int32_t code : {0, -1, -2, -14, -22}) {
    EXPECT_GE(amount[code], 20) << "code " << code;
  }
}

}  // namespace
