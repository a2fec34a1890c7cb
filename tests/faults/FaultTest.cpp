#include "FaultTest.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace {

constexpr std::size_t FileSize = 100 * 1024;
constexpr int MostEdits = 60;

std::string Described(const std::optional<std::string>& content) {
    return content ? std::to_string(content->size()) + " bytes" : "no file";
}

// The districts of the gazetteer that have some variations, with their comments.
std::string PartOfGazetteer() {
    constexpr int someVariations = 3;
    std::ifstream gazetteer(QUEXAL_DATA_DIR "/gazetteer-gb.txt");
    std::string content;
    std::string comments;
    for (std::string line; content.size() < FileSize && std::getline(gazetteer, line);) {
        if (line.starts_with('#')) {
            comments += line + "\r\n";
            continue;
        }
        if (std::count(line.begin(), line.end(), '|') >= someVariations) {
            content += comments + line + "\r\n";
        }
        comments.clear();
    }
    return content;
}

std::vector<std::string> ContentsAfterEdits() {
    const TemporaryFolder folder;
    const std::filesystem::path file = folder.Path() / "districts.txt";
    WriteContent(file, OldContent());
    Steps steps{"open", file};
    const auto nameAfter = [&](int edits) { return folder.Path() / std::to_string(edits); };
    for (int edit = 1; edit <= MostEdits; ++edit) {
        const std::string number = std::to_string(edit);
        steps.insert(steps.end(), {"edits", number, number, "save", nameAfter(edit)});
    }
    Session session({file, folder.Path() / "home", folder.Path() / "calls", {}}, steps);
    session.Finish();
    std::vector<std::string> contents{OldContent()};
    for (int edit = 1; edit <= MostEdits; ++edit) {
        contents.push_back(ContentOf(nameAfter(edit)).value());
    }
    return contents;
}

} // namespace

std::optional<std::string> ContentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(file), {});
}

void WriteContent(const std::filesystem::path& path, const std::string& content) {
    std::ofstream file(path, std::ios::binary);
    file << content;
    file.close();
    if (!file) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

const std::string& OldContent() {
    static const std::string content = PartOfGazetteer();
    return content;
}

const std::string& ContentAfter(int edits) {
    static const std::vector<std::string> contents = ContentsAfterEdits();
    return contents.at(static_cast<std::size_t>(edits));
}

std::string SavedWithoutFault(const std::string& content, int edits) {
    const TemporaryFolder folder;
    const std::filesystem::path file = folder.Path() / "districts.txt";
    WriteContent(file, content);
    Session session({file, folder.Path() / "home", folder.Path() / "calls", {}},
                    {"open", file, "edits", "1", std::to_string(edits), "save", file});
    session.Finish();
    return ContentOf(file).value();
}

TemporaryFolder::TemporaryFolder(Kind kind) {
    const std::filesystem::path memory = "/dev/shm";
    const bool inMemory = kind == Kind::InMemory && access(memory.c_str(), W_OK) == 0;
    const std::filesystem::path parent = inMemory ? memory : std::filesystem::temp_directory_path();
    std::string name = std::filesystem::canonical(parent) / "quexal-faults-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("no temporary folder");
    }
    m_path = name;
    std::filesystem::create_directory(m_path / "home");
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

FaultTest::FaultTest() {
    std::filesystem::create_directory(disk);
}

void FaultTest::PrepareDisk(const std::string& content) {
    for (const auto& emptied : {disk, home}) {
        for (const auto& entry : std::filesystem::directory_iterator(emptied)) {
            std::filesystem::remove_all(entry);
        }
    }
    WriteContent(place.file, content);
}

Steps FaultTest::EditAndSave(const std::filesystem::path& name, int edits) const {
    return {"open", place.file, "edits", "1", std::to_string(edits), "save", name.empty() ? place.file : name};
}

Steps FaultTest::EditAndPause(int edits) const {
    return {"open", place.file, "edits", "1", std::to_string(edits), "pause"};
}

Steps FaultTest::RecoverAndSave() const {
    return {"open", place.file, "save", place.file};
}

void FaultTest::ExpectRecovered(int fewest, int most) {
    Steps steps = RecoverAndSave();
    steps.insert(steps.end(), {"open", place.file, "save", place.file});
    Session next(place, steps);
    next.Finish();
    const auto found = ContentOf(place.file);
    int edits = fewest;
    while (edits < most && found != ContentAfter(edits)) {
        ++edits;
    }
    EXPECT_TRUE(found == ContentAfter(edits))
        << Described(found) << " found; not " << fewest << " to " << most << " edits are in them; this was said:\n"
        << next.Said();
    const std::string said = next.Said();
    const std::string again = "\nopened\nnothing to save\nfinished\n";
    EXPECT_TRUE(said.ends_with("\nsaved" + again) || said.ends_with("\nnothing to save" + again)) << said;
    EXPECT_EQ(next.Said().find("box Another editor"), std::string::npos) << next.Said();
}

void FaultTest::ExpectContent(const std::filesystem::path& file, const std::string& content) {
    const auto found = ContentOf(file);
    EXPECT_TRUE(found == content) << file << " has " << Described(found) << ", expected were " << Described(content);
}

void FaultTest::ExpectOldOrNew(const std::filesystem::path& file, const std::optional<std::string>& before,
                               const std::string& after) {
    const auto found = ContentOf(file);
    EXPECT_TRUE(found == before || found == after)
        << file << " has " << Described(found) << "; before: " << Described(before) << ", after: " << Described(after);
}

void FaultTest::ExpectOldOrNew(const Session& session, const std::filesystem::path& file,
                               const std::optional<std::string>& before, const std::string& after) {
    ExpectOldOrNew(file, before, after);
    if (session.Reached("saved")) {
        ExpectContent(file, after);
    }
    const std::vector<Call> calls = session.Calls();
    const bool couldCleanUp =
        std::none_of(calls.begin(), calls.end(), [](const Call& call) { return call.kind == "unlink" && call.failed; });
    if (session.Finished() && couldCleanUp) {
        for (const auto& entry : std::filesystem::directory_iterator(file.parent_path())) {
            EXPECT_TRUE(entry.path() == file || entry.path().filename() == "districts.txt" ||
                        entry.path().filename() == "lost+found")
                << entry.path() << " is left behind";
        }
    }
}
