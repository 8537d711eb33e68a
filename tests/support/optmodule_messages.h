// What is logged of optical modules: lines as FakePlatform::TakeLog gives them.
#pragma once

#include <string>

#include "support/text.h"

namespace test::optical {

// Under the number of the library's module, at either level.
inline std::string Detail(const std::string& text) {
  return "31 6 " + text;
}
inline std::string WholeFile(const std::string& text) {
  return "31 11 " + text;
}

// The lines with this code for each "%".
inline Names WithCode(Names lines, const std::string& code) {
  for (std::string& line : lines) {
    line = With(line, "%", code);
  }
  return lines;
}

// ---- The list -------------------------------------------------------------------

inline const std::string kNoneAnnounced =
    WholeFile("optmodule_infolist_read: ok! SupportedOptModuleInfoNum = 0.\r\n");
inline const std::string kNoMemoryForList =
    Detail("optmodule_infolist_read:objlist malloc err!.\r\n");

inline std::string NoCount(const std::string& code) {
  return Detail("optmodule_infolist_read: err! ret = " + code +
                ", section = SupportedOptModuleInfo, key = SupportedOptModuleInfoNum.\r\n");
}
inline std::string TooMany(const std::string& count) {
  return Detail("optmodule_infolist_read:err! listnum = " + count +
                ", MAX_OPTMODULE_INFO_NUM = 50\r\n");
}
// Behind the reason, for the device's own file.
inline std::string NotLoaded(const std::string& code) {
  return WholeFile("optmodule_defines_fileparse:read failded ,ret = " + code + ".\r\n");
}

inline std::string NoEntry(const std::string& code, const std::string& number) {
  return Detail("optmodule_infolist_read: err! ret = " + code +
                ", section = SupportedOptModuleInfo, key = SupportedOptModuleInfo" + number +
                "\r\n");
}
inline std::string NoSection(const std::string& code, const std::string& section) {
  return Detail("optmodule_infolist_read: err! ret = " + code +
                ", strSectionFrameNameBuf = " + section + ", Key = PortKind.\r\n");
}
// Of a module that is left out, behind the reason.
inline std::string Left(const std::string& code, const std::string& section) {
  return Detail("optmodule_infolist_read:optmodule_onuinfo_read err! ret = " + code +
                ", section = " + section + ".\r\n");
}

// ---- A module -------------------------------------------------------------------

inline const std::string kNoMemoryForModule =
    Detail("optmodule_oneinfo_read pOptModInfo malloc failed.\r\n");

inline std::string NoNumber(const std::string& code, const std::string& section,
                            const std::string& key) {
  return Detail("optmodule_oneinfo_read err! ret = " + code +
                ", strSectionFrameNameBuf = " + section + ", Key = " + key + ".\r\n");
}
inline std::string BadPathCount(const std::string& count) {
  return Detail("optmodule_oneinfo_read err! pOptModInfo->pathnum = " + count +
                ", out of range1-4.\r\n");
}
inline std::string NoMemoryForPaths(const std::string& count) {
  return Detail("optmodule_oneinfo_read err! pOptModInfo.pathinfo malloc failed, pathnum = " +
                count + ".\r\n");
}

// ---- A path ---------------------------------------------------------------------

inline const std::string kNoMemoryForPath =
    Detail("optmodule_onuthres_read poptthres malloc failed.\r\n");

inline std::string NoPath(const std::string& code, const std::string& section,
                          const std::string& key) {
  return Detail("optmodule_oneinfo_read get err! ret = " + code +
                ", strSectionFrameNameBuf = " + section + ", Key = " + key + ".\r\n");
}
inline std::string PathTooLong(const std::string& text) {
  return Detail("optmodule_onuthres_read: input info " + text + " 's length is out of 40. \r\n");
}
// Behind the reason, for a path of a module.
inline std::string PathNotRead(const std::string& code, const std::string& text) {
  return Detail("optmodule_oneinfo_read optmodule_onuthres_read err! ret = " + code +
                ", strBuf = " + text + ".\r\n");
}

// ---- Queries --------------------------------------------------------------------

inline std::string NoneFits(const std::string& function, const std::string& kind,
                            const std::string& port_type, const std::string& phy_type) {
  return Detail(function + ":get thresinfo failed, kind = " + kind + ", porttype = " + port_type +
                ", phytype = " + phy_type + ".\r\n");
}
inline std::string TooFewPlaces(const std::string& function, const std::string& paths,
                                const std::string& capacity) {
  return Detail(function + ":get thresinfo failed, curnum = " + paths + ", inputnum " + capacity +
                " is less.\r\n");
}

}  // namespace test::optical
