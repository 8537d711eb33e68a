// The platform functions that the library calls so far, over FakePlatform.
#include "support/fake_platform.h"

#include <cstdarg>
#include <cstdio>

namespace test {

FakePlatform& FakePlatform::Get() {
  static FakePlatform platform;
  return platform;
}

void FakePlatform::Reset() {
  Get() = FakePlatform();
}

}  // namespace test

using test::FakePlatform;

int32_t install_element(int32_t node, CommandRecord* record) {
  FakePlatform::Get().installed.push_back({node, record});
  return FakePlatform::Get().install_result;
}

int32_t vty_out(void* vty, const char* format, ...) {
  char text[4096];
  va_list values;
  va_start(values, format);
  const int length = std::vsnprintf(text, sizeof text, format, values);
  va_end(values);
  FakePlatform::Get().terminals_used.push_back(vty);
  FakePlatform::Get().terminal.append(text, static_cast<size_t>(length));
  return length;
}

int32_t modInitRegister(const char* name, int32_t a, int32_t b, int32_t c, int32_t d, int32_t e,
                        int32_t f) {
  FakePlatform& platform = FakePlatform::Get();
  platform.registered_modules.push_back(name);
  platform.register_numbers.push_back({a, b, c, d, e, f});
  return platform.register_result;
}

int32_t setModVersion(int32_t modId, int32_t number, const char* version) {
  FakePlatform& platform = FakePlatform::Get();
  platform.versions.push_back({modId, number, version});
  return platform.version_result;
}

int32_t bep_taskDelayEx(int32_t ticks) {
  FakePlatform& platform = FakePlatform::Get();
  platform.delays.push_back(ticks);
  platform.shown_before_delays.push_back(platform.terminal.size());
  return 0;
}

int32_t caCheckCardTypeIsPonCard(int16_t cardType) {
  FakePlatform& platform = FakePlatform::Get();
  platform.asked_pon_cards.push_back(cardType);
  return platform.pon_cards.count(cardType) != 0 ? 0 : platform.not_a_pon_card;
}
