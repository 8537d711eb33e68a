// The table of queries against the library's border: every exported function is in
// it or named here as one that is no query, and the arguments are those of the
// public headers. tests/threads/sweeps_test.cpp says what a query is, too, by the
// beginnings of the names.
#include "host/queries.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <set>
#include <sstream>

#include "support/temporary_folder.h"

namespace sysctx {
namespace {

using test::ReadWhole;
using testing::IsEmpty;

using Names = std::set<std::string>;

struct Group {
  const char* reason;
  Names names;
};

const Group kNoQueries[] = {
    {"borders of reserved areas",
     {"vkpJumpTableEntryBegin_0", "vkpJumpTableEntryBegin_1", "vkpJumpTableEntryEnd_0",
      "vkpJumpTableEntryEnd_1"}},
    {"helpers for texts and definition files",
     {"CFG_get_key", "CFG_get_key_offset", "alltrim", "ddStringToLowercase", "ddStringToUppercase",
      "fgetline", "ltrimstr", "rtrimstr", "split_key_val"}},
    {"start-up, hooks and placeholders",
     {"context_cmd_module_init", "context_module_init", "ddCmdInit", "ddInit", "ddParseContextFile",
      "ddReadContextFile", "dosFsVolumeBioBufferSize", "init_optmodule_info",
      "install_gepon_optmodule_inforead_element", "optmodule_defines_fileparse"}},
    {"the definition file's copy in flash",
     {"ddReadContextFileToBuf", "ddUploadContextFile", "read_compress_context_file"}},
    {"loaders",
     {"ddReadAllModuleInformation",
      "ddReadAllSupportedBoardInformation",
      "ddReadAllSupportedMainBoardInformation",
      "ddReadAllSupportedOltPortInformation",
      "ddReadAllSupportedOnuInformation",
      "ddReadAllSupportedOnuLanInformation",
      "ddReadAllSupportedOnuPonInformation",
      "ddReadAllSupportedOnuPotsInformation",
      "ddReadAllSupportedOnuSpecialPortInformation",
      "ddReadAllSwitchChipLogicPortToPhyPort",
      "ddReadFrameInformation",
      "ddReadOneModuleInformation",
      "ddReadOneSlotClass",
      "ddReadOneSupportedBoardInformation",
      "ddReadOneSupportedMainBoardInformation",
      "ddReadOneSupportedOltPortInformation",
      "ddReadOneSupportedOnuInformation",
      "ddReadOneSupportedOnuLanInformation",
      "ddReadOneSupportedOnuPonInformation",
      "ddReadOneSupportedOnuPotsInformation",
      "ddReadOneSupportedOnuSpecialPortInformation",
      "ddReadOneSwitchChipLogicPortToPhyPort",
      "ddReadSlotSupportBoard",
      "ddReadSpecialSwitchChipLogicPortToPhyPort",
      "ddReadSwitchChipLogicPortToSlotPort",
      "ddReadSysSupportFuncInformation",
      "ddReadVersionInformation",
      "optmodule_infolist_read",
      "optmodule_oneinfo_read",
      "optmodule_onuthres_read",
      "read_balance_switch_logicport_to_portinfo"}},
    {"change records or tables",
     {"ddAddSupportedLanToOnuObj", "ddAddSupportedPonToOnuObj", "ddAddSupportedPotsToOnuObj",
      "ddAddSupportedServePortToBoardObj", "ddAddSupportedSpecialPortToBoardObj",
      "ddAddSupportedSpecialPortToOnuObj", "ddEmptyFrameInformation",
      "ddFindSupportedBoardMaxPonNum", "ddFindSupportedOnuMaxLanNum", "ddFreeOneBoardAllObj",
      "ddFreeOneOnuAllObj", "optmodule_file_free", "optmodule_oneobj_free"}},
    {"handlers of commands",
     {"ddShowAllBoardInfo_Func", "ddShowAllDevice_Func", "ddShowAllModuleInfo_Func",
      "ddShowAllSupportedOnuType_Func", "ddShowAllSupportedOnu_Func", "ddShowContextFile_Func",
      "ddShowFrameInfo_Func", "ddShowMainBoardInfo_Func", "ddShowOltPortInfo_Func",
      "ddShowOneSupportedOnuInfo_Func", "ddShowOnuLanInfo_Func", "ddShowOnuPonInfo_Func",
      "ddShowOnuPotsInfo_Func", "ddShowOnuSpecialPortInfo_Func", "ddShowSysSupportFuncInfo_Func",
      "ddShowVersionInfo_Func", "ddUploadContextFile_Func", "show_optmodule_info_func"}},
    {"prints memory", {"ddPrintBuf"}},
    {"printers for a terminal",
     {"ddPrintAllContextInformation", "ddPrintAllModuleInformation",
      "ddPrintAllSupportedBoardInfomation", "ddPrintAllSupportedMainBoardInformation",
      "ddPrintAllSupportedOltPortInfomation", "ddPrintAllSupportedOnuLanInfomation",
      "ddPrintAllSupportedOnuPonInfomation", "ddPrintAllSupportedOnuPotsInfomation",
      "ddPrintAllSupportedOnuSpecialPortInfomation", "ddPrintAllSupportedOnuTypeBaseInfomation",
      "ddPrintAllSupportedOnuTypeInfomation", "ddPrintContextFile", "ddPrintFrameInfomation",
      "ddPrintOneSupportedBoardInfomation", "ddPrintOneSupportedOnuInfomation",
      "ddPrintSlotClassInformation", "ddPrintSysSupportFuncInformation",
      "ddPrintVersionInformation", "show_optmodule_fileinfo_byindex"}},
};

Names ExportedFunctions() {
  Names names;
  std::istringstream lines(ReadWhole(SYSCTX_SOURCE "/abi/exports.txt"));
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("T ")) {
      names.insert(line.substr(2));
    }
  }
  return names;
}

Names Queries() {
  Names names;
  for (const QueryFamily& family : AllQueries()) {
    for (const Query& query : family.queries) {
      EXPECT_TRUE(names.insert(query.name).second) << query.name << " is there twice";
    }
  }
  return names;
}

Names NoQueries() {
  Names names;
  for (const Group& group : kNoQueries) {
    for (const std::string& name : group.names) {
      EXPECT_TRUE(names.insert(name).second) << name << " is there twice: " << group.reason;
    }
  }
  return names;
}

Names Without(const Names& names, const Names& others) {
  Names rest;
  std::ranges::set_difference(names, others, std::inserter(rest, rest.end()));
  return rest;
}

TEST(ExportedFunction, IsAQueryOrKnownToBeNone) {
  const Names exported = ExportedFunctions();
  ASSERT_GT(exported.size(), 150u);
  EXPECT_THAT(Without(Without(exported, Queries()), NoQueries()), IsEmpty())
      << "each needs a row in host/queries_*.cpp, or a reason here not to have one";
}

TEST(ExportedFunction, IsNotBoth) {
  EXPECT_THAT(Without(Queries(), Without(Queries(), NoQueries())), IsEmpty());
}

TEST(ExportedFunction, IsAllThatIsKnown) {
  EXPECT_THAT(Without(Queries(), ExportedFunctions()), IsEmpty());
  EXPECT_THAT(Without(NoQueries(), ExportedFunctions()), IsEmpty());
}

// ---- The headers ------------------------------------------------------------------

std::string WithoutComments(std::string text) {
  for (size_t start; (start = text.find("/*")) != std::string::npos;) {
    text.erase(start, text.find("*/", start) + 2 - start);
  }
  return text;
}

bool IsIdentifier(char letter) {
  return isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_';
}

// The last identifier of a text, "" when it does not end with one.
std::string LastIdentifier(const std::string& text) {
  const size_t end = text.find_last_not_of(" \n") + 1;
  size_t start = end;
  while (start > 0 && IsIdentifier(text[start - 1])) {
    --start;
  }
  return text.substr(start, end - start);
}

// A function as it is declared: "name(parameter,parameter)".
std::string Declared(const std::string& declaration) {
  const size_t open = declaration.find('(');
  std::string text = LastIdentifier(declaration.substr(0, open)) + "(";
  std::istringstream parameters(declaration.substr(open + 1, declaration.find(')') - open - 1));
  for (std::string parameter; std::getline(parameters, parameter, ',');) {
    const std::string name = LastIdentifier(parameter);
    text += (text.ends_with('(') ? "" : ",") + (name == "void" ? "" : name);
  }
  return text + ")";
}

// The functions of a header that are queries, in its order.
std::vector<std::string> DeclaredQueries(const std::string& header) {
  const Names queries = Queries();
  std::vector<std::string> functions;
  std::istringstream statements(
      WithoutComments(ReadWhole(SYSCTX_SOURCE "/include/sys_context/" + header)));
  for (std::string statement; std::getline(statements, statement, ';');) {
    const size_t border = statement.rfind("SYS_CONTEXT_API");
    if (border == std::string::npos || statement.find('(', border) == std::string::npos) {
      continue;
    }
    const std::string function = Declared(statement.substr(border));
    if (queries.contains(function.substr(0, function.find('(')))) {
      functions.push_back(function);
    }
  }
  return functions;
}

std::string InTable(const Query& query) {
  std::string text = std::string(query.name) + "(";
  for (const Parameter& parameter : query.parameters) {
    text += std::string(text.ends_with('(') ? "" : ",") + parameter.name;
  }
  return text + ")";
}

TEST(Table, HasTheNamesAndTheOrderOfTheHeaders) {
  for (const QueryFamily& family : AllQueries()) {
    SCOPED_TRACE(family.name);
    std::vector<std::string> rows;
    for (const Query& query : family.queries) {
      rows.push_back(InTable(query));
    }
    EXPECT_THAT(rows, testing::Not(IsEmpty()));
    EXPECT_EQ(rows, DeclaredQueries(std::string(family.name) + ".h"));
  }
}

}  // namespace
}  // namespace sysctx
