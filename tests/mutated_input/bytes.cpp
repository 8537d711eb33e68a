// Drawing files and changing their bytes; see the header.
#include "mutated_input/bytes.h"

#include <algorithm>
#include <iterator>
#include <random>
#include <string_view>
#include <vector>

#include "mutated_input/samples.h"

namespace mutated {
namespace {

// The library's distributions differ from one implementation to another; the engine does not.
class Draw {
 public:
  Draw(uint32_t seed, uint32_t number) {
    std::seed_seq sequence = {seed, number};
    engine_.seed(sequence);
  }
  uint32_t Below(size_t limit) { return static_cast<uint32_t>(engine_() % limit); }
  bool OneIn(uint32_t count) { return Below(count) == 0; }
  const std::string& OneOf(const std::vector<std::string>& texts) {
    return texts[Below(texts.size())];
  }

 private:
  std::mt19937 engine_;
};

struct Sources {
  Files small = FilesOf(kSmallSample);
  Files large = FilesOf(kLargeSample);
  std::vector<std::string> seeds = Seeds();
  std::vector<std::string> loadable;  // those that a start loads to their end
  std::string optical_list = small.optical.substr(small.optical.find("\n["));

  Sources() {
    std::copy_if(seeds.begin(), seeds.end(), std::back_inserter(loadable),
                 [](const std::string& seed) { return seed.starts_with("; ddInit = 0"); });
  }
};

const Sources& TheSources() {
  static const Sources sources;
  return sources;
}

int32_t DeviceTypeOf(std::string_view device_file) {
  const bool is_small = device_file.find("[KT2200-A_") != std::string_view::npos;
  return is_small ? kSmallSample.device_type : kLargeSample.device_type;
}

// Bytes that mean something to the reader.
constexpr std::string_view kBytes = "[]{}=+;|,-0129 \t\r\n\f\x1a\xff#_AZaz";

char DrawByte(Draw& draw) {
  return draw.OneIn(2) ? kBytes[draw.Below(kBytes.size())] : static_cast<char>(draw.Below(256));
}

void ChangeByte(std::string& text, Draw& draw) {
  const size_t place = draw.Below(text.size() + 1);
  const uint32_t change = place == text.size() ? 2 : draw.Below(4);
  switch (change) {
    case 0:
      text[place] = static_cast<char>(text[place] ^ (1 << draw.Below(8)));
      break;
    case 1:
      text[place] = DrawByte(draw);
      break;
    case 2:
      text.insert(place, 1, DrawByte(draw));
      break;
    default:
      text.erase(place, 1);
      break;
  }
}

}  // namespace

MutatedFiles MutatedFilesOf(uint32_t seed, uint32_t number) {
  const Sources& sources = TheSources();
  Draw draw(seed, number);
  const bool is_optical = draw.OneIn(16);
  const auto& seeds = is_optical || draw.OneIn(2) ? sources.loadable : sources.seeds;
  MutatedFiles mutated = {{draw.OneOf(seeds), sources.optical_list}};
  if (draw.OneIn(32)) {
    mutated.files.device = sources.small.device;
  } else if (draw.OneIn(2000)) {
    mutated.files = sources.large;
  }
  mutated.device_type = DeviceTypeOf(mutated.files.device);
  std::string& text = is_optical ? mutated.files.optical : mutated.files.device;
  for (uint32_t changes = 1 + draw.Below(4); changes != 0; --changes) {
    ChangeByte(text, draw);
  }
  mutated.seed = draw.Below(1u << 31);
  return mutated;
}

}  // namespace mutated
