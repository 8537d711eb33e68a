// The kinds of generated files. Sections and keys come from a few short names,
// so that most questions meet something.
#include "cfgfile/generated_files.h"

#include <algorithm>

namespace generated {
namespace {

using std::string;
using std::string_view;
using std::literals::string_view_literals::operator""sv;

constexpr string_view kSectionNames[] = {"A", "B", "", " A", "A ", "AB", "[", "A]", "\x80", "k=1"};
constexpr string_view kKeyNames[] = {"k",    "j", "kk",  "k k", "kj", "k=1", "[",     ";",     "+",
                                     "\xFF", "",  "k\f", "9",   " k", "=",   "Port1", "Port11"};

// Where a block of the reader may end: the first one is of 4 KB, the others of 8.
constexpr size_t kBlockEnds[] = {4096, 4096, 4096, 8192, 12288, 12288, 20480};

constexpr string_view kTokens[] = {
    "[A]"sv,        "[B]"sv,    "{A}"sv,  "[A}"sv,  "{A]"sv,   "["sv,     "[]"sv,      "[a"sv,
    "{"sv,          "}"sv,      "]"sv,    "k=1"sv,  "k = 2"sv, "j=3"sv,   "k k=x=y"sv, "="sv,
    "=="sv,         "+"sv,      "+\n"sv,  ";"sv,    "#"sv,     " "sv,     "\t"sv,      "  "sv,
    "\n"sv,         "\n"sv,     "\n"sv,   "\n"sv,   "\n[A]"sv, "\n[B]"sv, "\nk=4"sv,   "\r\n"sv,
    "\r"sv,         "\r\r"sv,   "\0"sv,   "\f"sv,   "\x1A"sv,  "\x01"sv,  "\x0B"sv,    "\x1F"sv,
    "\x7F"sv,       "\x80"sv,   "\xFF"sv, "\x8A"sv, "\x8D"sv,  "\xDB"sv,  "A"sv,       "word"sv,
    "\n k=5 +\n"sv, "\n;[A\n"sv};

constexpr string_view kLines[] = {
    "[A]"sv,        "[B]"sv,     "[A]"sv,    "{A}"sv,       "[ A]"sv,      "[]"sv,
    "[AB"sv,        "k=1"sv,     "k = 2"sv,  "j=3"sv,       " k\t=\t4 "sv, "kk=5"sv,
    "k k=6"sv,      "word"sv,    "; text"sv, ""sv,          " \t"sv,       "k=7+"sv,
    "j=8 +"sv,      "+"sv,       "=9"sv,     "#"sv,         "x=[A]"sv,     "y=10"sv,
    "kj=12"sv,      "jj\t=13"sv, "{B}"sv,    "\tz = a=b"sv, "Port1=1"sv,   "Port11 = 2"sv,
    "Port2\t=+ "sv, "9=1"sv,     ">=2"sv,    "Name"sv};

// Line ends, the usual ones more often.
constexpr string_view kLineEnds[] = {"\n"sv, "\n"sv,   "\n"sv,   "\n"sv,    "\n"sv,
                                     "\n"sv, "\r\n"sv, "\r\n"sv, "\r"sv,    "\0"sv,
                                     "\f"sv, "\x1A"sv, "\n\r"sv, "\r\r\n"sv};

string Tokens(Random& random, size_t amount) {
  string bytes;
  for (size_t i = 0; i < amount; ++i) {
    bytes += random.From(kTokens);
  }
  return bytes;
}

// Ordinary text of some bytes; now and then of other bytes than letters.
string Text(Random& random, size_t size) {
  constexpr char kFillers[] = {'x', 'x', 'x', 'y', '=', ' ', '\t', '[', ']', '\x80', '\x0B', ';'};
  string text(size, random.From(kFillers));
  for (size_t i = random.OneIn(3) ? 4 : 0; i > 0 && size > 0; --i) {
    text[random.Below(size)] = random.From(kFillers);
  }
  return text;
}

string Lines(Random& random, size_t amount) {
  string bytes;
  const string_view usual_end = random.From(kLineEnds);
  for (size_t i = 0; i < amount; ++i) {
    bytes += random.From(kLines);
    bytes += random.OneIn(5) ? random.From(kLineEnds) : usual_end;
  }
  if (random.OneIn(3) && !bytes.empty()) {
    bytes.pop_back();
  }
  return bytes;
}

// Changes some bytes of a file.
void Damage(Random& random, string& bytes) {
  for (size_t i = random.Below(4); i > 0 && !bytes.empty(); --i) {
    const size_t place = random.Below(bytes.size());
    switch (random.Below(4)) {
      case 0:
        bytes[place] = static_cast<char>(random.Below(256));
        break;
      case 1:
        bytes.erase(place, random.Between(1, 3));
        break;
      case 2:
        bytes.insert(place, random.From(kTokens));
        break;
      default:
        bytes.insert(place, bytes.substr(random.Below(bytes.size()), random.Between(1, 12)));
        break;
    }
  }
}

string Heap(Random& random) {
  return Tokens(random, random.Below(24));
}

string Sections(Random& random) {
  string bytes = Lines(random, random.Below(14));
  Damage(random, bytes);
  return bytes;
}

// A run of bytes about as long as one, two or three full lines.
size_t LongLength(Random& random) {
  switch (random.Below(4)) {
    case 0:
    case 1:
      return random.Between(505, 520);
    case 2:
      return random.Between(1018, 1030);
    default:
      return random.Between(1530, 1542);
  }
}

// A line that is cut: its head, some text, and a tail which the next line may
// begin with.
string LongLine(Random& random) {
  constexpr string_view kHeads[] = {"k=", "[", "{", ";", "", "j = ", "  ", "k", "\t k ="};
  string line(random.From(kHeads));
  const size_t length = LongLength(random);
  line += Text(random, length - std::min(line.size(), length));
  for (size_t i = random.Below(3); i > 0; --i) {
    line.insert(random.Below(line.size()), "\r");
  }
  line += Tokens(random, random.Below(4));
  return line;
}

string LongLines(Random& random) {
  string bytes = Lines(random, random.Below(4));
  for (size_t i = random.Between(1, 3); i > 0; --i) {
    bytes += LongLine(random);
    bytes += random.From(kLineEnds);
    bytes += Lines(random, random.Below(3));
  }
  Damage(random, bytes);
  return bytes;
}

// Entries of several lines, which come to about 512 characters.
string Continued(Random& random) {
  string bytes = random.OneIn(4) ? Lines(random, 2) : "[A]\n";
  for (size_t i = random.Between(1, 3); i > 0; --i) {
    bytes += random.OneIn(4) ? "+" : "k = ";
    const size_t length = random.OneIn(2) ? random.Below(12) : random.Between(500, 520);
    const size_t pieces = random.Between(1, 4);
    for (size_t piece = 0; piece < pieces; ++piece) {
      bytes += Text(random, length / pieces);
      bytes += random.OneIn(8) ? "" : "+";
      bytes += random.OneIn(4) ? " \t" : "";
      bytes += random.From(kLineEnds);
      bytes += random.OneIn(4) ? "  " : "";
    }
    bytes += Text(random, random.OneIn(2) ? length % pieces : random.Below(6));
    bytes += random.From(kLineEnds);
    bytes += Lines(random, random.Below(3));
  }
  Damage(random, bytes);
  return bytes;
}

// Lines of one sort that come to exactly `size` bytes.
string Filler(Random& random, size_t size) {
  constexpr string_view kFillers[] = {"\n"sv,
                                      "\r\n"sv,
                                      ";\n"sv,
                                      "x\n"sv,
                                      "k=1\n"sv,
                                      "q=12345\n"sv,
                                      "\tword\r\n"sv,
                                      "[C]\n"sv,
                                      "; a comment of many words\r\n"sv,
                                      "q = 1,2,3,4,5,6,7,8\n"sv};
  const string_view line = random.From(kFillers);
  string bytes;
  while (bytes.size() + line.size() <= size) {
    bytes += line;
  }
  return bytes.insert(0, string(size - bytes.size(), ' '));
}

// Something of interest around the end of a block, in or ahead of a section.
string BlockEnd(Random& random) {
  string bytes = random.OneIn(2) ? "[A]\n" : "";
  for (size_t i = random.OneIn(4) ? 2 : 1; i > 0; --i) {
    size_t end = random.From(kBlockEnds) + 3 - random.Below(7);
    const string interest = random.OneIn(4)   ? LongLine(random)
                            : random.OneIn(2) ? Lines(random, random.Between(1, 4))
                                              : Tokens(random, random.Between(1, 6));
    end -= random.Below(interest.size() + 1);
    if (end > bytes.size()) {
      bytes += Filler(random, end - bytes.size());
    }
    bytes += interest;
  }
  bytes += random.OneIn(2) ? Lines(random, 3) : "";
  if (random.OneIn(4)) {
    Damage(random, bytes);
  }
  return bytes;
}

// More carriage returns, one after the other, than blocks hold.
string CarriageReturns(Random& random) {
  string bytes = random.OneIn(2) ? "[A]\n" : Lines(random, random.Below(4));
  bytes += Tokens(random, random.Below(3));
  bytes.append(
      random.OneIn(3) ? random.Between(3, 600) : random.From(kBlockEnds) - random.Below(12), '\r');
  return bytes + Tokens(random, random.Below(4)) + Lines(random, random.Below(4));
}

// Plain lines ahead of a section, with a few bytes among them that are not.
string OddBytes(Random& random) {
  constexpr char kOdd[] = {'\0', '\f', '\x1A', '\r', '\n', '[', '{', '\t', '\x80', '\x8A', '\xDB'};
  string bytes = Filler(random, random.Between(60, 700));
  for (size_t i = random.Between(1, 3); i > 0; --i) {
    bytes[random.Below(bytes.size())] = random.From(kOdd);
  }
  return bytes + "[A]\nk=1\n";
}

// Sections of all sorts, up to three blocks of them.
string Large(Random& random) {
  string bytes;
  for (const size_t size = random.Below(3 * 8192); bytes.size() < size;) {
    switch (random.Below(8)) {
      case 0:
        bytes += LongLine(random) + "\n";
        break;
      case 1:
        bytes += "[A]\n" + Filler(random, random.Below(3000)) + "k=1\n";
        break;
      case 2:
        bytes += "[B]\nq=1+\n2\n";
        break;
      default:
        bytes += Filler(random, random.Below(600)) + "[C]\n";
        break;
    }
  }
  Damage(random, bytes);
  return bytes;
}

}  // namespace

constinit const std::array<Kind, 8> kKinds = {{
    {"Heap", Heap, 42'000},
    {"Sections", Sections, 42'000},
    {"LongLines", LongLines, 9'000},
    {"Continued", Continued, 9'000},
    {"OddBytes", OddBytes, 8'000},
    {"BlockEnd", BlockEnd, 3'600},
    {"CarriageReturns", CarriageReturns, 600},
    {"Large", Large, 400},
}};

uint64_t SeedOf(size_t kind, int number) {
  return (uint64_t{kind} << 32) + static_cast<uint64_t>(number);
}

string_view SectionName(Random& random) {
  return random.OneIn(2) ? "A" : random.From(kSectionNames);
}

string_view KeyName(Random& random) {
  return random.OneIn(2) ? "k" : random.From(kKeyNames);
}

}  // namespace generated
