#pragma once

// The words of the service's interfaces, shared by the command and the info document.

#include <hrm_api/hrm_api_command.h>

#include <string>

namespace hrm {

// "connect", "legacy", and "uconnect" for every other value.
inline const wchar_t* interfaceWord(EHermetorInterface value)
{
    switch (value) {
    case EHermetorInterface::Connect: return L"connect";
    case EHermetorInterface::Legacy: return L"legacy";
    default: return L"uconnect";
    }
}

// Exactly "connect" and "legacy" name their interfaces; every other word names UConnect.
inline EHermetorInterface interfaceFromWord(const std::wstring& word)
{
    if (word == L"connect")
        return EHermetorInterface::Connect;
    if (word == L"legacy")
        return EHermetorInterface::Legacy;
    return EHermetorInterface::UConnect;
}

} // namespace hrm
