// A file of each kind cut at each of its bytes: the check ends, and tells a fault of that file wherever a
// record or an end is missing.
#include "check/CheckedDrive.h"
#include "support/CutDrive.h"

#include <algorithm>

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr std::size_t Step = 10;
#else
constexpr std::size_t Step = 1;
#endif

class CheckedCuts : public CheckedDrive, public testing::WithParamInterface<CutKind> {};

int LinesIn(const std::string& bytes) {
    return static_cast<int>(std::ranges::count(bytes, '\n')) + 1;
}

} // namespace

TEST_P(CheckedCuts, AreToldOfThatFileAtAPlaceWithinIt) {
    ChooseActiveTerm("Term 1");
    const std::string name = GetParam().file().name;
    const std::string bytes = DataFile(name);
    const std::string end = "</" + GetParam().file().root + ">";
    for (std::size_t cut = 0; cut < bytes.size(); cut += Step) {
        const std::string text = bytes.substr(0, cut);
        SetDataFile(name, text);
        const CheckResult result = Check();
        const auto found = std::ranges::find(result.findings, name, &Finding::file);
        ASSERT_EQ(found == result.findings.end(), text.ends_with(end)) << cut << Shown(result.findings);
        for (const Finding& finding : result.findings) {
            ASSERT_LE(finding.line, LinesIn(bytes)) << cut << Shown(finding);
            ASSERT_FALSE(finding.fault.empty() || finding.meaning.empty()) << cut << Shown(finding);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, CheckedCuts, testing::ValuesIn(CutKinds),
                         [](const testing::TestParamInfo<CutKind>& row) { return row.param.name; });
