#include "platform/meeting_socket.h"
#include "platform/windows/system_path.h"

#include <aclapi.h>
#include <sddl.h>
#include <windows.h>

namespace kestrum {

namespace {

/// What the token of this process tells, as bytes that hold what they point to.
std::string Told_By_Token(TOKEN_INFORMATION_CLASS what) {
    HANDLE token = nullptr;
    if (::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &token) == 0) {
        return {};
    }
    DWORD size = 0;
    ::GetTokenInformation(token, what, nullptr, 0, &size);
    std::string told(size, '\0');
    if (::GetTokenInformation(token, what, told.data(), size, &size) == 0) {
        told.clear();
    }
    ::CloseHandle(token);
    return told;
}

/// Rights for the user and the system alone, which all that lies within takes over.
PSECURITY_DESCRIPTOR Rights_Of_User() {
    const std::string told = Told_By_Token(TokenUser);
    wchar_t* user = nullptr;
    if (told.empty() ||
        ::ConvertSidToStringSidW(reinterpret_cast<const TOKEN_USER*>(told.data())->User.Sid,
                                 &user) == 0) {
        return nullptr;
    }
    const std::wstring words = std::wstring(L"D:P(A;OICI;FA;;;SY)(A;OICI;FA;;;") + user + L")";
    ::LocalFree(user);
    PSECURITY_DESCRIPTOR rights = nullptr;
    ::ConvertStringSecurityDescriptorToSecurityDescriptorW(words.c_str(), SDDL_REVISION_1, &rights,
                                                           nullptr);
    return rights;
}

/// Files of an administrator are owned by all of them, if the token says so.
bool Is_Owned_By_User(const std::wstring& path) {
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR facts = nullptr;
    if (::GetNamedSecurityInfoW(path.c_str(), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner,
                                nullptr, nullptr, nullptr, &facts) != ERROR_SUCCESS) {
        return false;
    }
    const std::string user = Told_By_Token(TokenUser);
    const std::string usual = Told_By_Token(TokenOwner);
    const bool is_own =
        (!user.empty() &&
         ::EqualSid(owner, reinterpret_cast<const TOKEN_USER*>(user.data())->User.Sid) != 0) ||
        (!usual.empty() &&
         ::EqualSid(owner, reinterpret_cast<const TOKEN_OWNER*>(usual.data())->Owner) != 0);
    ::LocalFree(facts);
    return is_own;
}

bool Is_Plain_Folder(const std::wstring& path) {
    const DWORD kind = ::GetFileAttributesW(path.c_str());
    return kind != INVALID_FILE_ATTRIBUTES && (kind & FILE_ATTRIBUTE_DIRECTORY) != 0 &&
           (kind & FILE_ATTRIBUTE_REPARSE_POINT) == 0;
}

} // namespace

bool Make_Private_Folder(const std::string& path) {
    const std::wstring folder = System_Path(path);
    const PSECURITY_DESCRIPTOR rights = Rights_Of_User();
    if (rights == nullptr) {
        return false;
    }
    SECURITY_ATTRIBUTES wanted{
        .nLength = sizeof wanted, .lpSecurityDescriptor = rights, .bInheritHandle = FALSE};
    bool is_private = ::CreateDirectoryW(folder.c_str(), &wanted) != 0;
    if (!is_private && Is_Plain_Folder(folder) && Is_Owned_By_User(folder)) {
        is_private =
            ::SetFileSecurityW(folder.c_str(),
                               DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                               rights) != 0;
    }
    ::LocalFree(rights);
    return is_private;
}

} // namespace kestrum
