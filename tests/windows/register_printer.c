/* Registers a USB printer with the system and prints its device path:
 *   register_printer USB\VID_0ABC&PID_0012 INSTANCE */
#include <initguid.h>
#include <windows.h>

#include <setupapi.h>
#include <stdio.h>
#include <stdlib.h>

DEFINE_GUID(usbPrinterClass, 0x28D78FAD, 0x5A12, 0x11D1, 0xAE, 0x5B, 0x00, 0x00, 0xF8, 0x03, 0xA8,
            0xC2);
#define CLASS_TEXT "{28d78fad-5a12-11d1-ae5b-0000f803a8c2}"

static void must(int done, const char* what)
{
    if (done)
        return;
    fprintf(stderr, "%s: error %lu\n", what, GetLastError());
    exit(1);
}

/* What tells the system that the device is plugged in. */
static void setLinked(const char* devicePath)
{
    char name[500];
    /* The interface's key is named like its path, with "#" for the backslashes at its start. */
    snprintf(name, sizeof name,
             "SYSTEM\\CurrentControlSet\\Control\\DeviceClasses\\" CLASS_TEXT
             "\\##?#%s\\#\\Control",
             devicePath + 4);
    HKEY key = NULL;
    const DWORD linked = 1;
    must(RegCreateKeyExA(HKEY_LOCAL_MACHINE, name, 0, NULL, 0, KEY_WRITE, NULL, &key, NULL) == 0,
         name);
    RegSetValueExA(key, "Linked", 0, REG_DWORD, (const BYTE*)&linked, sizeof linked);
    RegCloseKey(key);
}

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    char instance[200];
    char hardwareIds[200] = {0}; /* a list: each text ends in a zero, the list in another */
    snprintf(instance, sizeof instance, "%s\\%s", argv[1], argv[2]);
    const int length = snprintf(hardwareIds, sizeof hardwareIds - 1, "%s", argv[1]);

    SP_DEVINFO_DATA device = {.cbSize = sizeof device};
    SP_DEVICE_INTERFACE_DATA printer = {.cbSize = sizeof printer};
    HDEVINFO set = SetupDiCreateDeviceInfoList(NULL, NULL);
    must(SetupDiCreateDeviceInfoA(set, instance, &usbPrinterClass, NULL, NULL, 0, &device),
         "device");
    must(SetupDiSetDeviceRegistryPropertyA(set, &device, SPDRP_HARDWAREID, (BYTE*)hardwareIds,
                                           (DWORD)length + 2),
         "hardware identifier");
    must(SetupDiRegisterDeviceInfo(set, &device, 0, NULL, NULL, NULL), "registration");
    must(SetupDiCreateDeviceInterfaceA(set, &device, &usbPrinterClass, NULL, 0, &printer),
         "interface");

    union {
        SP_DEVICE_INTERFACE_DETAIL_DATA_A detail;
        char bytes[1024];
    } memory;
    memory.detail.cbSize = sizeof memory.detail;
    must(SetupDiGetDeviceInterfaceDetailA(set, &printer, &memory.detail, sizeof memory, NULL, NULL),
         "path");
    setLinked(memory.detail.DevicePath);
    printf("%s\n", memory.detail.DevicePath);
    SetupDiDestroyDeviceInfoList(set);
    return 0;
}
