#include "ui/machine/windows/Rights.h"

#include "ui/machine/windows/Native.h"

#include <memory>
#include <utility>

namespace Rights {

namespace {

std::optional<Descriptor> Kept(HANDLE file, SECURITY_INFORMATION which) {
    DWORD size = 0;
    GetKernelObjectSecurity(file, which, nullptr, 0, &size);
    Descriptor kept(size);
    return size > 0 && GetKernelObjectSecurity(file, which, kept.data(), size, &size) != 0 ? std::optional(kept)
                                                                                           : std::nullopt;
}

// It points into itself, and so must never be copied.
std::unique_ptr<Descriptor> OfThisProgram(TOKEN_INFORMATION_CLASS which) {
    HANDLE token = INVALID_HANDLE_VALUE;
    if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) == 0) {
        return nullptr;
    }
    const Native::Handle owner(token);
    DWORD size = 0;
    GetTokenInformation(token, which, nullptr, 0, &size);
    auto information = std::make_unique<Descriptor>(size);
    const bool isKnown = size > 0 && GetTokenInformation(token, which, information->data(), size, &size) != 0;
    return isKnown ? std::move(information) : nullptr;
}

// A list of labels that is not empty.
bool HasLabel(HANDLE file) {
    auto kept = Kept(file, LABEL_SECURITY_INFORMATION);
    BOOL isThere = FALSE;
    BOOL isDefault = FALSE;
    PACL labels = nullptr;
    return kept && GetSecurityDescriptorSacl(kept->data(), &isThere, &labels, &isDefault) != 0 && isThere != FALSE &&
           labels != nullptr && labels->AceCount > 0;
}

} // namespace

std::optional<Descriptor> Of(HANDLE file) {
    return Kept(file, OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION);
}

std::optional<Descriptor> OfTheUserAlone() {
    const auto token = OfThisProgram(TokenUser);
    if (!token) {
        return std::nullopt;
    }
    const PSID user = reinterpret_cast<TOKEN_USER*>(token->data())->User.Sid;
    const DWORD size = static_cast<DWORD>(sizeof(ACL) + sizeof(ACCESS_ALLOWED_ACE)) + GetLengthSid(user);
    std::vector<unsigned char> bytes(size);
    auto* const list = reinterpret_cast<ACL*>(bytes.data());
    SECURITY_DESCRIPTOR descriptor{};
    if (InitializeAcl(list, size, ACL_REVISION) == 0 ||
        AddAccessAllowedAce(list, ACL_REVISION, FILE_ALL_ACCESS, user) == 0 ||
        InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION) == 0 ||
        SetSecurityDescriptorDacl(&descriptor, TRUE, list, FALSE) == 0 ||
        SetSecurityDescriptorControl(&descriptor, SE_DACL_PROTECTED, SE_DACL_PROTECTED) == 0) {
        return std::nullopt;
    }
    DWORD length = 0;
    MakeSelfRelativeSD(&descriptor, nullptr, &length);
    Descriptor rights(length);
    return MakeSelfRelativeSD(&descriptor, rights.data(), &length) != 0 ? std::optional(rights) : std::nullopt;
}

bool Give(HANDLE file, Descriptor& rights) {
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    // Without being asked to, the system forgets which of them came from a folder.
    if (GetSecurityDescriptorControl(rights.data(), &control, &revision) != 0 &&
        (control & SE_DACL_AUTO_INHERITED) != 0) {
        SetSecurityDescriptorControl(rights.data(), SE_DACL_AUTO_INHERIT_REQ, SE_DACL_AUTO_INHERIT_REQ);
    }
    return SetKernelObjectSecurity(file, DACL_SECURITY_INFORMATION, rights.data()) != 0;
}

// The user may own a file, and so may the group that stands in for an administrator.
bool CannotBeGiven(HANDLE file) {
    const auto volume = Native::VolumeOf(file);
    if (!volume || (*volume & FILE_PERSISTENT_ACLS) == 0) {
        return !volume; // without rights, nothing there belongs to anybody
    }
    auto kept = Kept(file, OWNER_SECURITY_INFORMATION);
    const auto user = OfThisProgram(TokenUser);
    const auto group = OfThisProgram(TokenOwner);
    PSID owner = nullptr;
    BOOL isDefault = FALSE;
    if (!kept || !user || !group || GetSecurityDescriptorOwner(kept->data(), &owner, &isDefault) == 0 ||
        owner == nullptr) {
        return true;
    }
    const bool mayOwn = EqualSid(owner, reinterpret_cast<TOKEN_USER*>(user->data())->User.Sid) != 0 ||
                        EqualSid(owner, reinterpret_cast<TOKEN_OWNER*>(group->data())->Owner) != 0;
    return !mayOwn || HasLabel(file);
}

} // namespace Rights
