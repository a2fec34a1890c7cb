#pragma once

#include "core/StateFolder.h"

#include <map>
#include <memory>
#include <set>

// A state folder in memory. Editors that are to see each other's files share their storage.
class MemoryStateFolder : public CommonRoutines::StateFolder {
public:
    struct Storage {
        std::map<std::string, std::string> files;
        std::set<std::string> locks; // held by living editors
        int names = 0;
    };

    explicit MemoryStateFolder(std::shared_ptr<Storage> shared = std::make_shared<Storage>())
        : storage(std::move(shared)) {}
    ~MemoryStateFolder() override { Die(); }

    std::shared_ptr<Storage> storage;
    bool canWrite = true;
    bool canLock = true;
    bool canList = true;
    std::set<std::string> unreadable;

    // What the system does for a process that ends, however it ends.
    void Die() {
        for (const std::string& name : m_locks) {
            storage->locks.erase(name);
            storage->files[name]; // a dead lock stays as a file
        }
        m_locks.clear();
    }

    // All files but locks.
    [[nodiscard]] std::vector<std::string> Kept(std::string_view ending = {}) const {
        std::vector<std::string> kept;
        for (const auto& [name, content] : storage->files) {
            if (!content.empty() && name.ends_with(ending)) {
                kept.push_back(name);
            }
        }
        return kept;
    }

    std::vector<std::string> Names() override {
        m_problem = canList ? "" : "Too many open files";
        if (!canList) {
            return {};
        }
        std::set<std::string> names = storage->locks;
        for (const auto& [name, content] : storage->files) {
            names.insert(name);
        }
        return {names.begin(), names.end()};
    }
    std::string NewName() override { return std::to_string(1000 + ++storage->names); }

    std::optional<std::string> Read(const std::string& name) override {
        const auto file = storage->files.find(name);
        const bool isRead = file != storage->files.end() && !unreadable.contains(name);
        m_problem = isRead ? "" : "Input/output error";
        return isRead ? std::optional(file->second) : std::nullopt;
    }
    bool IsGone(const std::string& name) override { return !storage->files.contains(name); }
    bool Replace(const std::string& name, std::string_view content) override {
        if (canWrite) {
            storage->files.insert_or_assign(name, std::string(content));
        }
        return canWrite;
    }
    bool Extend(const std::string& name, std::size_t kept, std::string_view added) override {
        const auto file = storage->files.find(name);
        if (!canWrite || file == storage->files.end() || file->second.size() < kept) {
            return false;
        }
        file->second.resize(kept);
        file->second += added;
        return true;
    }
    bool Rename(const std::string& name, const std::string& newName) override {
        std::string key(newName);
        auto file = storage->files.extract(name);
        if (file.empty()) {
            return false;
        }
        file.key() = std::move(key);
        storage->files.insert(std::move(file));
        return true;
    }
    bool Remove(const std::string& name) override { return storage->files.erase(name) > 0; }

    CommonRoutines::LockResult Lock(const std::string& name) override {
        m_problem = canLock ? "" : "Permission denied";
        if (!canLock) {
            return CommonRoutines::LockResult::Impossible;
        }
        if (storage->locks.contains(name)) {
            return CommonRoutines::LockResult::HeldByAnother;
        }
        m_locks.insert(name);
        storage->locks.insert(name);
        return CommonRoutines::LockResult::Taken;
    }
    void Unlock(const std::string& name) override {
        if (m_locks.erase(name) > 0) {
            storage->locks.erase(name);
            storage->files.erase(name);
        }
    }

    std::string Problem() override { return m_problem; }

    std::string PathOf(const std::string& name) override { return "/state/" + name; }
    std::string TimeOf(const std::string& /*name*/) override { return "05 Mar 2026 14:07"; }

private:
    std::set<std::string> m_locks;
    std::string m_problem;
};
