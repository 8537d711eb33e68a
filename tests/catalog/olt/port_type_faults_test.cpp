// The OLT port types when memory runs out or the file cannot be had.
#include <string>

#include "catalog/olt/port_types.h"
#include "catalog/port_type_faults.h"

namespace {

using std::string;
using test::PortTypeFaults;
using test::PortTypeSection;

const string kNotRead =
    "\r\nddReadAllSupportedOltPortInformation->ddReadOneSupportedOltPortInformation err! iResult = -31, strValueBuf = S{n}";

const test::PortTypeLoad kLoad = {
    .name = "Olt",
    .file = test::ThreePortTypes(PortTypeSection("S1", "1", "N1", "10") +
                                 PortTypeSection("S2", "2", "N2", "20") +
                                 PortTypeSection("S3", "3", "N3", "30")),
    .read_all = ddReadAllSupportedOltPortInformation,
    .count = &gstSupportedOltPortType.ulSupportedOltPortTypeNum,
    .types = &gstSupportedOltPortType.pOltPortTypeArray,
    .no_array = "\r\nddReadAllSupportedOltPortInformation->malloc err! pOltPortTypeArray = 0x0",
    .no_record =
        "\r\nddReadOneSupportedOltPortInformation->malloc err! pstOltPortInformation = 0x0"
        "\r\nddReadAllSupportedOltPortInformation->ddReadOneSupportedOltPortInformation err! iResult = -27, strValueBuf = S{n}",
    .number_unreadable =
        "\r\nddReadAllSupportedOltPortInformation err! iResult = {code}, section = SupportedOltPortType, key = SupportedOltPortTypeNum",
    .entry_failed =
        {
            "\r\nddReadAllSupportedOltPortInformation err! iResult = {code}, section = SupportedOltPortType, key = SupportedOltPortType{n}",
            "\r\nddReadOneSupportedOltPortInformation err! iResult = {code}, strSectionFrameNameBuf = S{n}, Key = Type" +
                kNotRead,
            "\r\nddReadOneSupportedOltPortInformation err! iResult = {code}, section = S{n}, key = Name" +
                kNotRead,
            "\r\nddReadOneSupportedOltPortInformation err! iResult = {code}, section = S{n}, key = SplittingRatio" +
                kNotRead,
        },
};
INSTANTIATE_TEST_SUITE_P(PortTypes, PortTypeFaults, testing::Values(kLoad),
                         testing::PrintToStringParamName());

}  // namespace
