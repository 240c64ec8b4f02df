#ifndef ESP_FLASHER_H
#define ESP_FLASHER_H

/*
 * The flasher library's flat interface. Every entry point blocks its calling
 * thread for one whole job and calls its callbacks synchronously on that
 * thread. Buffers and texts passed in are borrowed for the call; texts
 * returned are malloc'd copies that the caller releases with free(). At most
 * one job may run at a time.
 *
 * A buffer given as null with a non-zero length is refused before the port is
 * opened ("Invalid argument: <name> is null with length <n>" to the log, where
 * there is one); null with length 0 means absent. A port that another process
 * has open is not opened ("Port is in use by <name> (pid <n>)", then "Failed to
 * open port"); once open, the port is exclusive until the job closes it.
 */

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Result code: 0 success, 2 port not opened, 3 no sync, 4 wrong chip or
 * secure boot, 5 stub failed, 6 erase or write failed, 7 MD5 mismatch,
 * 8 configuration upload or file download failed. 1, 9 and 10 are reserved
 * for the application. */
typedef uint32_t esp_error_t;

/* Progress callback: fraction 0..1 and a short stage text. May be null. */
typedef void (*esp_progress_cb)(float progress, const char* stage);

/* Log callback: one line without line ending. May be null. */
typedef void (*esp_log_cb)(const char* line);

/* esp_flash_firmware reports its region writes ("Flashing") as fractions from
 * ESP_PROGRESS_REGIONS_START to ESP_PROGRESS_REGIONS_START + ESP_PROGRESS_REGIONS_SPAN,
 * each region's share in proportion to its size; before them it reports only 0.08
 * (the whole-flash erase), after them nothing. Callers map their own bar onto this
 * span to show the share of bytes written. */
#define ESP_PROGRESS_REGIONS_START 0.12f
#define ESP_PROGRESS_REGIONS_SPAN 0.73f

/* Writes the flash plan (bootloader 0x0 and partitions 0x8000 when fullFlash,
 * boot-app 0xE000 when given, application 0x10000), verifies each region by MD5,
 * restarts the chip and, when expectedVersion is neither null nor empty, asks the
 * firmware for its version. Returns 0, 2, 3, 4, 5, 6 or 7. */
esp_error_t esp_flash_firmware(const char* port, const uint8_t* firmware, size_t firmwareLen,
                               const uint8_t* bootloader, size_t bootloaderLen,
                               const uint8_t* partitions, size_t partitionsLen,
                               const uint8_t* bootApp, size_t bootAppLen, const uint8_t* stub,
                               size_t stubLen, int fullFlash, int eraseAll,
                               const char* expectedVersion, esp_progress_cb progress,
                               esp_log_cb log);

/* Uploads a configuration file as config.yaml over XModem and restarts the
 * firmware. Logs only a refused buffer or a port in use. Returns 0, 2 or 8. */
esp_error_t esp_upload_config(const char* port, const uint8_t* data, size_t length,
                              esp_progress_cb progress, esp_log_cb log);

/* Version text of the running firmware (possibly empty), or null. */
char* esp_query_version(const char* port);

/* Path of the first USB serial port with these ids, or null. Opens nothing. */
char* esp_detect_device(uint16_t vendorId, uint16_t productId);

/* One USB serial port found by esp_list_devices. */
typedef struct esp_port_info {
    /* the node to open, as esp_detect_device returns it */
    char path[256];
    /* the USB device's serial number (sysfs "serial", trimmed); empty when it has none */
    char serial[128];
} esp_port_info;

/* Lists the USB serial ports with these ids in enumeration order, filling at most `capacity`
 * entries of `ports` (which may be null when capacity is 0); returns how many there are in all.
 * A text longer than its field is cut; every field is NUL-terminated. Opens nothing, logs
 * nothing; may run while a job holds a port. */
size_t esp_list_devices(uint16_t vendorId, uint16_t productId, esp_port_info* ports,
                        size_t capacity);

/* Reads the partition table through the flasher stub: 1 valid, 0 not valid,
 * -1 could not be read. */
int esp_probe_partition_table(const char* port, const uint8_t* stub, size_t stubLen);

/* Downloads the file `name` (for example "config.yaml") from the firmware's file
 * system over XModem. On 0, *data holds a malloc'd copy of the file that the
 * caller releases with free(), and *length its size; an empty file gives length 0
 * and may give a null pointer. On failure *data is null, *length 0, and one log
 * line names the cause. Returns 0, 2 (port not opened) or 8 (download failed,
 * also for a missing name or null output pointers). */
esp_error_t esp_download_file(const char* port, const char* name, uint8_t** data, size_t* length,
                              esp_progress_cb progress, esp_log_cb log);

#ifdef __cplusplus
}
#endif

#endif
