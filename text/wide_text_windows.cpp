#include "text/wide_text_windows.h"

#include <windows.h>

namespace text {

std::wstring wideText(std::string_view text)
{
    const int size = static_cast<int>(text.size());
    const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), length);
    return wide;
}

std::string utf8Text(std::wstring_view text)
{
    const int size = static_cast<int>(text.size());
    const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, narrow.data(), length, nullptr, nullptr);
    return narrow;
}

std::string systemMessage(unsigned long error)
{
    std::wstring words(512, L'\0');
    words.resize(FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0,
                                words.data(), static_cast<DWORD>(words.size()), nullptr));
    words.erase(words.find_last_not_of(L"\r\n ") + 1);
    return words.empty() ? "error " + std::to_string(error) : utf8Text(words);
}

}  // namespace text
