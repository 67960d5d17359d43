#include "registered_data_folder.h"

#include <windows.h>

namespace q7
{
namespace
{

/** The key, open for reading; null when it is not there. Nothing is ever made by asking. */
class Key
{
public:
    explicit Key(REGSAM view)
    {
        if (::RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Q7", 0, KEY_QUERY_VALUE | view,
                            &m_key) != ERROR_SUCCESS)
            m_key = nullptr;
    }
    ~Key()
    {
        if (m_key != nullptr)
            ::RegCloseKey(m_key);
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    bool exists() const { return m_key != nullptr; }

    /** A text as it stands: variables in it are not replaced. Empty when there is none. */
    std::wstring text(const wchar_t* name) const
    {
        constexpr DWORD texts = RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND;
        std::wstring value(MAX_PATH, L'\0');
        LSTATUS status = ERROR_MORE_DATA;
        while (status == ERROR_MORE_DATA) {
            auto size = static_cast<DWORD>(value.size() * sizeof(wchar_t));
            status = ::RegGetValueW(m_key, nullptr, name, texts, nullptr, value.data(), &size);
            if (status == ERROR_MORE_DATA)
                value.resize(size / sizeof(wchar_t) + 1);
        }
        value.resize(status == ERROR_SUCCESS ? std::wcslen(value.c_str()) : 0);
        return value;
    }

private:
    HKEY m_key = nullptr;
};

} // namespace

// The key is looked for in the process's own view of the registry and read in the 64-bit one:
// installers write the value there and make the key in both. Most machines have no key at all; then
// nothing else is asked.
NativePath registeredDataFolder()
{
    if (!Key(0).exists())
        return {};
    const Key key(KEY_WOW64_64KEY);
    return key.exists() ? key.text(L"data_path") : NativePath();
}

} // namespace q7
