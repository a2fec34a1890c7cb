// Writes a data file to measure with, and prints what it holds:
//   quexal-bench-data [--preset small|large|huge] [options] FILE

#include "DistrictFile.h"

#include <array>
#include <charconv>
#include <fstream>
#include <iostream>
#include <map>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

using namespace BenchData;

namespace {

constexpr const char* Usage =
    "usage: quexal-bench-data [OPTION VALUE]... FILE\n"
    "  --preset NAME      small: 2,300 districts of 20 variations; large: 100,000 of 10; huge: 1,000,000 of 5\n"
    "  --districts N      districts\n"
    "  --mean M           variations of a district, on average\n"
    "  --seed S           another file of the same kind\n"
    "  --big N            variations of the district in the middle\n"
    "  --proposals N,FILE writes N proposals for the district in the middle into a file of their own\n"
    "  --dup R            share of duplicates among the variations; the others likewise:\n"
    "  --warn R           unreadable letters\n"
    "  --accent R         letters above ASCII\n"
    "  --caps R           unusual capitals\n"
    "  --cross R          names of other districts\n"
    "  --comments R       share of the districts that have a comment line above\n"
    "  --blank-lines R    share of the districts that have a blank line above\n";

struct Request {
    FilePlan plan;
    std::string file;
    std::string proposalFile;
};

struct WrongUsage : std::runtime_error {
    using runtime_error::runtime_error;
};

template <typename Number>
Number NumberIn(std::string_view text) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) {
        throw WrongUsage("no number: " + std::string(text));
    }
    return number;
}

Share ShareIn(std::string_view text) {
    const auto share = NumberIn<double>(text);
    if (!(share >= 0 && share <= 1)) {
        throw WrongUsage("no share between 0 and 1: " + std::string(text));
    }
    return Share(share);
}

void SetPreset(FilePlan& plan, std::string_view name) {
    struct Preset {
        std::string_view name;
        std::size_t districts;
        std::size_t mean;
    };
    constexpr std::array<Preset, 3> presets{{{"small", 2'300, 20}, {"large", 100'000, 10}, {"huge", 1'000'000, 5}}};
    for (const Preset& preset : presets) {
        if (preset.name == name) {
            plan.districts = preset.districts;
            plan.mean = preset.mean;
            return;
        }
    }
    throw WrongUsage("no preset: " + std::string(name));
}

void SetProposals(Request& request, std::string_view value) {
    const std::size_t comma = value.find(',');
    if (comma == std::string_view::npos) {
        throw WrongUsage("no file for the proposals");
    }
    request.plan.proposals = NumberIn<std::size_t>(value.substr(0, comma));
    request.proposalFile = value.substr(comma + 1);
}

void SetOption(Request& request, std::string_view name, std::string_view value) {
    FilePlan& plan = request.plan;
    const std::map<std::string_view, std::size_t*> numbers{
        {"--districts", &plan.districts}, {"--mean", &plan.mean}, {"--big", &plan.big}};
    const std::map<std::string_view, Share*> shares{
        {"--dup", &plan.duplicates},        {"--warn", &plan.unreadable},  {"--accent", &plan.accented},
        {"--caps", &plan.unusualCapitals},  {"--cross", &plan.otherNames}, {"--comments", &plan.comments},
        {"--blank-lines", &plan.blankLines}};
    if (name == "--preset") {
        SetPreset(plan, value);
    } else if (name == "--seed") {
        plan.seed = NumberIn<std::uint64_t>(value);
    } else if (name == "--proposals") {
        SetProposals(request, value);
    } else if (const auto number = numbers.find(name); number != numbers.end()) {
        *number->second = NumberIn<std::size_t>(value);
    } else if (const auto share = shares.find(name); share != shares.end()) {
        *share->second = ShareIn(value);
    } else {
        throw WrongUsage("no option: " + std::string(name));
    }
}

Request RequestIn(std::span<char*> arguments) {
    Request request;
    std::size_t i = 0;
    for (; i + 1 < arguments.size(); i += 2) {
        SetOption(request, arguments[i], arguments[i + 1]);
    }
    if (i + 1 != arguments.size()) {
        throw WrongUsage("no file named");
    }
    if (request.plan.districts == 0) {
        throw WrongUsage("no district");
    }
    request.file = arguments[i];
    return request;
}

void WriteProposals(const Request& request, const WrittenFile& file) {
    std::ofstream out(request.proposalFile, std::ios::binary);
    for (const std::string& proposal : file.proposals) {
        out << proposal << "\r\n";
    }
    if (!out.flush()) {
        throw std::runtime_error("cannot write " + request.proposalFile);
    }
}

void Write(const Request& request) {
    std::ofstream out(request.file, std::ios::binary);
    const WrittenFile file = WriteDistrictFile(request.plan, out);
    if (!out.flush()) {
        throw std::runtime_error("cannot write " + request.file);
    }
    if (!request.proposalFile.empty()) {
        WriteProposals(request, file);
    }
    const FileCounts& counts = file.counts;
    std::cout << counts.lines << " lines, " << counts.commentLines << " comment lines, " << counts.blankLines
              << " blank lines, " << counts.districts << " districts, " << counts.variations << " variations, "
              << counts.duplicates << " duplicates, " << counts.warnings << " warnings, " << counts.unusualCapitals
              << " unusual capitals, " << counts.otherNames << " names of other districts, " << counts.bytes
              << " bytes\n";
}

} // namespace

int main(int argc, char* argv[]) {
    try {
        Write(RequestIn(std::span(argv, static_cast<std::size_t>(argc)).subspan(1)));
    } catch (const WrongUsage& wrong) {
        std::cerr << wrong.what() << '\n' << Usage;
        return 2;
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
    return 0;
}
