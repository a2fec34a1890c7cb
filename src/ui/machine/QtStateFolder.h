#pragma once

#include "core/StateFolder.h"
#include "ui/machine/FileLock.h"

#include <QString>

#include <cstdint>
#include <map>
#include <memory>

namespace Ui {

// The state folder on the disk, made when something is first put into it.
class QtStateFolder : public CommonRoutines::StateFolder {
public:
    std::vector<std::string> Names() override;
    std::string NewName() override;
    std::optional<std::string> Read(const std::string& name) override;
    bool IsGone(const std::string& name) override;
    bool Replace(const std::string& name, std::string_view content) override;
    bool Extend(const std::string& name, std::size_t kept, std::string_view added) override;
    bool Rename(const std::string& name, const std::string& newName) override;
    bool Remove(const std::string& name) override;
    CommonRoutines::LockResult Lock(const std::string& name) override;
    void Unlock(const std::string& name) override;
    std::string Problem() override { return m_problem; }
    std::string PathOf(const std::string& name) override;
    std::string TimeOf(const std::string& name) override;

private:
    static QString FilePath(const std::string& name);

    std::map<std::string, std::unique_ptr<FileLock>> m_locks;
    std::uint64_t m_lastNumber = 0; // given out
    std::string m_problem;
};

} // namespace Ui
