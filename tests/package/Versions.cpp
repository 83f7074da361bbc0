// Prints the version resource of each file that is named: number, then the texts.
#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

static std::string Text(const std::vector<char>& info, const char* pszName) {
    const std::string path = std::string("\\StringFileInfo\\040904B0\\") + pszName;
    void* pText = nullptr;
    UINT length = 0;
    return ::VerQueryValueA(info.data(), path.c_str(), &pText, &length) ? static_cast<const char*>(pText)
                                                                        : "(none)";
}

static void Print(const char* pszFile) {
    DWORD unused = 0;
    std::vector<char> info(::GetFileVersionInfoSizeA(pszFile, &unused));
    void* pFixed = nullptr;
    UINT length = 0;
    if (info.empty() || !::GetFileVersionInfoA(pszFile, 0, static_cast<DWORD>(info.size()), info.data()) ||
        !::VerQueryValueA(info.data(), "\\", &pFixed, &length)) {
        std::printf("%s has no version\n", pszFile);
        return;
    }
    const auto& fixed = *static_cast<const VS_FIXEDFILEINFO*>(pFixed);
    std::printf("%s %d.%d.%d", Text(info, "OriginalFilename").c_str(), HIWORD(fixed.dwFileVersionMS),
                LOWORD(fixed.dwFileVersionMS), HIWORD(fixed.dwFileVersionLS));
    for (const char* pszName :
         {"FileVersion", "ProductVersion", "ProductName", "CompanyName", "LegalCopyright"})
        std::printf("|%s", Text(info, pszName).c_str());
    std::printf("\n");
}

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i)
        Print(argv[i]);
}
