#include "DistrictFile.h"

#include "Names.h"
#include "Spellings.h"

#include <algorithm>
#include <array>

namespace BenchData {

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::size_t BlockSize = std::size_t{1} << 20U;

// How many variations the districts have: few have many. The sizes, in thousandths of the mean, are
// those at a half, one, one and a half ... deviations from the middle of a log-normal distribution; a
// sum of twelve random numbers is close enough to a normal one.
constexpr std::array<std::uint64_t, 17> SizesByDeviation{60,   83,   115,  159,  221,  305,  423,  585,  810,
                                                         1120, 1550, 2150, 2970, 4110, 5690, 7880, 10900};
constexpr std::size_t Draws = 12;
constexpr std::uint32_t EmptyPercent = 1;

std::size_t SomeSize(Random& random, std::size_t mean) {
    if (random.Happens(EmptyPercent)) {
        return 0;
    }
    std::uint64_t sum = 0;
    for (std::size_t i = 0; i < Draws; ++i) {
        sum += random.Billionths();
    }
    // The sum runs over twelve deviations, of which the table has the middle eight.
    constexpr std::uint64_t half = Share::Whole / 2;
    constexpr std::uint64_t below = 2ULL * Share::Whole;
    const std::uint64_t last = half * (SizesByDeviation.size() - 1) - 1;
    const std::uint64_t place = std::min(sum - std::min(sum, below), last);
    const std::size_t step = static_cast<std::size_t>(place / half);
    const std::uint64_t low = SizesByDeviation[step];
    const std::uint64_t high = SizesByDeviation[step + 1];
    const std::uint64_t thousandths = low + (high - low) * (place % half) / half;
    return std::max<std::size_t>(1, static_cast<std::size_t>((mean * thousandths + 500) / 1000));
}

// The sizes of the districts, the sum of which is exactly as planned.
std::vector<std::size_t> Sizes(const FilePlan& plan, Random& random) {
    std::vector<std::size_t> sizes(plan.districts);
    std::size_t sum = 0;
    for (std::size_t& size : sizes) {
        size = SomeSize(random, plan.mean);
        sum += size;
    }
    const std::size_t wanted = plan.districts * plan.mean;
    while (sum != wanted) {
        std::size_t& size = sizes[random.Below(sizes.size())];
        if (sum < wanted) {
            ++size;
            ++sum;
        } else if (size > 1) {
            --size;
            --sum;
        }
    }
    return sizes;
}

enum class Kind { Ordinary, Duplicate, Unreadable, Accented, UnusualCapitals, OtherName };

// Draws kinds of variations with the planned shares.
class Kinds {
public:
    explicit Kinds(const FilePlan& plan) {
        Add(Kind::Duplicate, ShareOfDuplicates(plan));
        Add(Kind::UnusualCapitals, plan.unusualCapitals);
        Add(Kind::Unreadable, plan.unreadable);
        Add(Kind::Accented, plan.accented);
        Add(Kind::OtherName, plan.otherNames);
    }

    [[nodiscard]] Kind Draw(Random& random) const {
        const std::uint32_t place = random.Billionths();
        const auto range = std::find_if(m_ranges.begin(), m_ranges.end(),
                                        [&](const Range& candidate) { return place < candidate.end; });
        return range == m_ranges.end() ? Kind::Ordinary : range->kind;
    }

private:
    struct Range {
        Kind kind;
        std::uint64_t end;
    };

    // The first variation of a district cannot repeat another one, so the others do a little more often.
    static Share ShareOfDuplicates(const FilePlan& plan) {
        const std::uint64_t share = plan.duplicates.Billionths();
        return plan.mean > 1 ? Share::FromBillionths(share * plan.mean / (plan.mean - 1)) : plan.duplicates;
    }

    void Add(Kind kind, Share share) {
        m_ranges.push_back({kind, (m_ranges.empty() ? 0 : m_ranges.back().end) + share.Billionths()});
    }

    std::vector<Range> m_ranges;
};

// One file from its first line to its last.
class FileWriter {
public:
    FileWriter(const FilePlan& plan, std::ostream& out)
        : m_plan(plan), m_out(out), m_random(plan.seed), m_kinds(plan),
          m_names(DistrictNames(m_random, plan.districts)) {}

    WrittenFile Run();

private:
    void WriteLineAbove();
    void WriteDistrict(std::size_t district, std::size_t size);
    void AppendHeader(const std::string& name, const std::string& county);
    void AppendOptionalParts(const std::string& county);
    Variation Draw(Spellings& spellings);
    void CountVariation(const Variation& variation);
    void DrawProposals(Spellings& spellings);
    void EndLine();
    void Flush();

    const FilePlan& m_plan;
    std::ostream& m_out;
    Random m_random;
    Kinds m_kinds;
    std::vector<std::string> m_names;
    std::vector<Variation> m_variations; // of the district being written
    std::string m_block;                 // not yet written out
    WrittenFile m_file;
};

WrittenFile FileWriter::Run() {
    const std::vector<std::size_t> sizes = Sizes(m_plan, m_random);
    const std::size_t middle = m_plan.districts / 2;
    for (std::size_t district = 0; district < m_plan.districts; ++district) {
        WriteLineAbove();
        WriteDistrict(district, district == middle && m_plan.big > 0 ? m_plan.big : sizes[district]);
    }
    Flush();
    return std::move(m_file);
}

void FileWriter::WriteLineAbove() {
    constexpr std::uint32_t typedPercent = 92;
    constexpr int fewestWords = 3;
    constexpr int mostWords = 11;
    const std::uint32_t place = m_random.Billionths();
    if (place < m_plan.comments.Billionths()) {
        m_block += '#';
        if (m_random.Happens(typedPercent)) {
            m_block.append("QX_").append(m_random.OneOf(Words::CommentTypes));
        }
        for (int words = m_random.Between(fewestWords, mostWords); words > 0; --words) {
            m_block.append(" ").append(m_random.OneOf(Words::CommentWords));
        }
        ++m_file.counts.commentLines;
        EndLine();
    } else if (place < m_plan.comments.Billionths() + m_plan.blankLines.Billionths()) {
        ++m_file.counts.blankLines;
        EndLine();
    }
}

void FileWriter::WriteDistrict(std::size_t district, std::size_t size) {
    const std::string& name = m_names[district];
    const std::string county(m_random.OneOf(Words::Counties));
    AppendHeader(name, county);
    Spellings spellings(name, county);
    m_variations.clear();
    while (m_variations.size() < size) {
        m_variations.push_back(Draw(spellings));
        m_block.append("|").append(m_variations.back().Text());
        CountVariation(m_variations.back());
    }
    ++m_file.counts.districts;
    EndLine();
    if (district == m_plan.districts / 2) {
        DrawProposals(spellings);
    }
}

void FileWriter::AppendHeader(const std::string& name, const std::string& county) {
    constexpr int firstYear = 1837;
    constexpr int noYear = 9999;
    constexpr std::uint32_t fromTheStart = 45;
    constexpr std::uint32_t unknownStart = 3;
    constexpr std::uint32_t stillThere = 35;
    constexpr std::uint32_t inTwoVolumes = 53;
    int founded = m_random.Happens(fromTheStart) ? firstYear : m_random.Between(firstYear + 1, firstYear + 150);
    int abolished = founded + m_random.Between(1, 120);
    const bool startIsUnknown = m_random.Happens(unknownStart);
    // Without a first year it has no last one, or its years would not even overlap with themselves.
    const bool isStillThere = startIsUnknown || m_random.Happens(stillThere);
    if (startIsUnknown) {
        founded = noYear;
    }
    if (isStillThere) {
        abolished = noYear;
    }
    m_block.append(name).append("+").append(Volume(m_random));
    if (m_random.Happens(inTwoVolumes)) {
        m_block.append("/").append(m_random.OneOf(Words::RomanNumbers));
    }
    const auto append = [&](int number) { m_block.append("+").append(std::to_string(number)); };
    m_block.append("+").append(county);
    append(founded);
    append(startIsUnknown ? 0 : m_random.Between(1, 4));
    append(abolished);
    append(isStillThere ? 0 : m_random.Between(1, 5));
    m_block.append("+").append(InCapitals(name.substr(0, 3)));
    append(m_random.Between(100, 999));
    AppendOptionalParts(county);
}

void FileWriter::AppendOptionalParts(const std::string& county) {
    constexpr int withFlag = 50;
    constexpr int withCode = 35;
    constexpr int withRegion = 20;
    constexpr int withNumber = 10;
    const int place = m_random.Between(0, 99);
    if (place < withFlag) {
        m_block += "+Y";
    }
    if (place < withCode) {
        m_block.append("+RG").append(std::to_string(m_random.Between(4, 13)));
    }
    if (place < withRegion) {
        m_block.append("+").append(county.substr(0, 4));
    }
    if (place < withNumber) {
        m_block.append("+").append(std::to_string(m_random.Between(0, 99'999)));
    }
}

Variation FileWriter::Draw(Spellings& spellings) {
    switch (m_kinds.Draw(m_random)) {
    case Kind::Duplicate:
        if (!m_variations.empty()) {
            ++m_file.counts.duplicates;
            return Spellings::Duplicate(m_variations, m_random);
        }
        break;
    case Kind::Unreadable:
        return spellings.Unreadable(m_random);
    case Kind::Accented:
        return spellings.Accented(m_random);
    case Kind::UnusualCapitals:
        return spellings.UnusualCapitals(m_random);
    case Kind::OtherName:
        return spellings.OtherName(m_names[m_random.Below(m_names.size())], m_random);
    case Kind::Ordinary:
        break;
    }
    return spellings.Ordinary(m_random);
}

void FileWriter::CountVariation(const Variation& variation) {
    FileCounts& counts = m_file.counts;
    ++counts.variations;
    counts.warnings += variation.IsWarned() ? 1U : 0U;
    counts.unusualCapitals += variation.hasUnusualCapitals ? 1U : 0U;
    counts.otherNames += variation.isOtherName ? 1U : 0U;
}

// From random numbers of their own, so that the rest of the file stays as it is.
void FileWriter::DrawProposals(Spellings& spellings) {
    constexpr std::uint32_t repeatedPercent = 5;
    Random random(m_plan.seed + 1);
    while (m_file.proposals.size() < m_plan.proposals) {
        const bool repeats = !m_variations.empty() && random.Happens(repeatedPercent);
        m_file.proposals.push_back(repeats ? m_variations[random.Below(m_variations.size())].Text()
                                           : spellings.Ordinary(random).Text());
    }
}

void FileWriter::EndLine() {
    m_block += LineEnd;
    ++m_file.counts.lines;
    if (m_block.size() >= BlockSize) {
        Flush();
    }
}

void FileWriter::Flush() {
    m_out.write(m_block.data(), static_cast<std::streamsize>(m_block.size()));
    m_file.counts.bytes += m_block.size();
    m_block.clear();
}

} // namespace

WrittenFile WriteDistrictFile(const FilePlan& plan, std::ostream& out) {
    return FileWriter(plan, out).Run();
}

} // namespace BenchData
