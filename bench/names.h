// The names by which scenarios and contestants are found again in the results.
#pragma once

namespace bench {

inline constexpr char kLibrary[] = "library";
inline constexpr char kLibraryWithOffset[] = "library, offset";
inline constexpr char kScanFloor[] = "floor";
inline constexpr char kOpenFloor[] = "open + read 4 KB + close";
inline constexpr char kFread[] = "fread";
inline constexpr char kGetc[] = "getc_unlocked";
inline constexpr char kInih[] = "inih";
inline constexpr char kIniparser[] = "iniparser";

inline constexpr char kMiddle[] = "600 KB, middle";
inline constexpr char kEnd[] = "600 KB, end";
inline constexpr char kCrLfMiddle[] = "600 KB, CR LF, middle";
inline constexpr char kCrLfEnd[] = "600 KB, CR LF, end";
inline constexpr char kHuge[] = "1 MB, one huge section, end";

inline constexpr char kFirstSmall[] = "2 KB, first key";
inline constexpr char kFirstMedium[] = "600 KB, first key";
inline constexpr char kFirstLarge[] = "20 MB, first key";

inline constexpr char kLongLines[] = "600 KB, every 200th line of 600 characters";
inline constexpr char kOddBytes[] = "600 KB, every 50th line with FF, tab or lone CR";
inline constexpr char kAllTabs[] = "600 KB, tabs in every line";
inline constexpr char kHugeOddBytes[] = "1 MB, one huge section, every 50th line so";

}  // namespace bench
