/* Where the library looks for its files, whatever the registry holds: data_folder DLL FOLDER. FOLDER
 * is empty and the program's to use; the registry's key of the library is its own too. The library
 * appends to the log of the data folder as it is loaded, so that log tells which folder it took. */
#include "host.h"

#include <stdio.h>
#include <string.h>
#include <wchar.h>
#include <windows.h>

#define KEY L"SOFTWARE\\Q7"
#define LENGTH_OF(array) (sizeof(array) / sizeof(array)[0])

enum { NO_LOG, REGISTERED_FOLDER, WORKING_FOLDER };

typedef struct {
    const char* name;
    int ownKey;            /* whether the process's own view of the registry has the key */
    const WCHAR* value;    /* in the 64-bit view, below FOLDER; null for no key there */
    const WCHAR* ownValue; /* in the process's own view */
    int expected;
} Row;

#define MISSING L"?" /* the key without a value */

static const Row rows[] = {
    {"value in the 64-bit view", 1, L"registrada\\", NULL, REGISTERED_FOLDER},
    {"slashes", 1, L"registrada/", NULL, REGISTERED_FOLDER},
    {"no separator at its end", 1, L"registrada", NULL, REGISTERED_FOLDER},
    {"accents", 1, L"Configura\u00E7\u00E3o \u20AC\\", NULL, REGISTERED_FOLDER},
    {"no key", 0, NULL, NULL, WORKING_FOLDER},
    {"no value", 1, MISSING, NULL, WORKING_FOLDER},
    {"empty value", 1, L"", NULL, WORKING_FOLDER},
    {"folder that does not exist", 1, L"nenhuma\\", NULL, WORKING_FOLDER},
    {"file instead of a folder", 1, L"arquivo", NULL, WORKING_FOLDER},
#ifndef _WIN64
    {"key in the 64-bit view alone", 0, L"registrada\\", NULL, WORKING_FOLDER},
    {"value in the other view alone", 1, NULL, L"registrada\\", WORKING_FOLDER},
#endif
};

static WCHAR home[MAX_PATH]; /* FOLDER, with a separator behind it */

static void inHome(WCHAR* path, const WCHAR* name)
{
    swprintf(path, MAX_PATH, L"%ls%ls", home, name);
}

static HKEY keyOf(REGSAM view, int create)
{
    HKEY key = NULL;
    if (create)
        RegCreateKeyExW(HKEY_LOCAL_MACHINE, KEY, 0, NULL, 0, KEY_ALL_ACCESS | view, NULL, &key,
                        NULL);
    else
        RegOpenKeyExW(HKEY_LOCAL_MACHINE, KEY, 0, KEY_QUERY_VALUE | view, &key);
    return key;
}

/* The key and its value in one view, as a text that can be compared. */
static void describe(WCHAR* text, REGSAM view)
{
    WCHAR value[MAX_PATH] = L"no value";
    DWORD size = sizeof value - sizeof *value;
    const HKEY key = keyOf(view, 0);
    if (key != NULL) {
        RegQueryValueExW(key, L"data_path", NULL, NULL, (BYTE*)value, &size);
        RegCloseKey(key);
    }
    swprintf(text, MAX_PATH, L"%ls", key == NULL ? L"no key" : value);
}

static void setValue(REGSAM view, const WCHAR* name)
{
    WCHAR path[MAX_PATH] = L"";
    const HKEY key = keyOf(view, 1);
    if (*name != L'\0')
        inHome(path, name);
    if (wcscmp(name, MISSING) != 0)
        RegSetValueExW(key, L"data_path", 0, REG_SZ, (const BYTE*)path,
                       (DWORD)((wcslen(path) + 1) * sizeof *path));
    RegCloseKey(key);
}

static void forget(void)
{
    RegDeleteKeyExW(HKEY_LOCAL_MACHINE, KEY, KEY_WOW64_32KEY, 0);
    RegDeleteKeyExW(HKEY_LOCAL_MACHINE, KEY, KEY_WOW64_64KEY, 0);
}

/* An empty log, which turns logging on. */
static void makeLog(const WCHAR* folder, WCHAR* path)
{
    WCHAR name[MAX_PATH];
    swprintf(name, MAX_PATH, L"%ls%lslog_q7.txt", folder,
             wcscspn(folder, L"\\/") < wcslen(folder) ? L"" : L"\\");
    inHome(path, name);
    inHome(name, folder);
    CreateDirectoryW(name, NULL);
    fclose(_wfopen(path, L"wb"));
}

static int isWritten(const WCHAR* path)
{
    WIN32_FILE_ATTRIBUTE_DATA data;
    return GetFileAttributesExW(path, GetFileExInfoStandard, &data) && data.nFileSizeLow > 0;
}

static void run(const Row* row, const char* dll)
{
    WCHAR before[2][MAX_PATH];
    WCHAR after[2][MAX_PATH];
    WCHAR working[MAX_PATH];
    WCHAR registered[MAX_PATH] = L"";
    const WCHAR* value = row->value != NULL ? row->value : row->ownValue;

    makeLog(L"trabalho", working);
    if (row->expected == REGISTERED_FOLDER || row->ownValue != NULL)
        makeLog(value, registered);
    if (row->ownKey)
        RegCloseKey(keyOf(0, 1));
    if (row->value != NULL)
        setValue(KEY_WOW64_64KEY, row->value);
    if (row->ownValue != NULL)
        setValue(0, row->ownValue);
    describe(before[0], KEY_WOW64_32KEY);
    describe(before[1], KEY_WOW64_64KEY);

    FreeLibrary(loadLibrary(dll));

    describe(after[0], KEY_WOW64_32KEY);
    describe(after[1], KEY_WOW64_64KEY);
    const int found = (isWritten(registered) ? REGISTERED_FOLDER : NO_LOG) +
                      (isWritten(working) ? WORKING_FOLDER : NO_LOG);
    check(row->name,
          found == row->expected && wcscmp(before[0], after[0]) == 0 &&
              wcscmp(before[1], after[1]) == 0,
          "log %d instead of %d; registry: %ls, %ls; then %ls, %ls", found, row->expected,
          before[0], before[1], after[0], after[1]);
    forget();
}

int main(int argc, char** argv)
{
    WCHAR path[MAX_PATH];
    if (argc != 3)
        return 2;
    swprintf(home, MAX_PATH, L"%hs\\", argv[2]);
    inHome(path, L"trabalho");
    CreateDirectoryW(path, NULL);
    SetCurrentDirectoryW(path);
    inHome(path, L"arquivo");
    fclose(_wfopen(path, L"wb"));
    forget();
    for (size_t i = 0; i < LENGTH_OF(rows); ++i)
        run(&rows[i], argv[1]);
    return exitStatus();
}
