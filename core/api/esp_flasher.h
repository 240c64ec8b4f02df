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

/* How the machine started after a restart, judged from what it printed. */
enum esp_startup_verdict {
    ESP_STARTUP_RUNNING = 0,       /* answered a version that contains the expected one (or none
                                      was expected) */
    ESP_STARTUP_WRONG_VERSION = 1, /* answered another version */
    ESP_STARTUP_BOOT_LOOP = 2,     /* restarts over and over */
    ESP_STARTUP_PANIC = 3,         /* the firmware crashed (panic, abort, watchdog, stack) */
    ESP_STARTUP_NO_APP = 4,        /* nothing valid to start: no application, corrupt or erased */
    ESP_STARTUP_BROWNOUT = 5,      /* the brown-out detector reset it: USB power is not enough */
    ESP_STARTUP_CONFIG_ERROR = 6,  /* the firmware runs but rejects its configuration */
    ESP_STARTUP_NO_ANSWER = 7,     /* no version and nothing conclusive */
};

#define ESP_STARTUP_EVIDENCE_LINES 5

/* What the machine did after its restart. Every pointer is null or a malloc'd block
 * owned by the caller, who releases them all with esp_startup_report_free. The
 * entry points that fill a report overwrite every field without freeing: free a
 * used report before passing it again. */
typedef struct esp_startup_report {
    int listened;  /* non-zero when the machine was listened to after its restart */
    int portLost;  /* non-zero when the port hung up after the restart */
    int verdict;   /* enum esp_startup_verdict; ESP_STARTUP_NO_ANSWER when not listened */
    char* version; /* the version it answered (malloc'd), or null */
    char* evidence[ESP_STARTUP_EVIDENCE_LINES]; /* quoted lines (malloc'd), most telling first,
                                                   unused ones null */
    uint8_t* transcript; /* what it printed, the newest 64 KiB at most (malloc'd), or null */
    size_t transcriptLen;
} esp_startup_report;

/* Frees what the report's fields point to and zeroes them; the struct itself is the
 * caller's. A null report is ignored. */
void esp_startup_report_free(esp_startup_report* report);

/* Writes the flash plan (bootloader 0x0 and partitions 0x8000 when fullFlash,
 * boot-app 0xE000 when given, application 0x10000), verifies each region by MD5,
 * restarts the chip and, when expectedVersion is neither null nor empty, asks the
 * firmware for its version. Returns 0, 2, 3, 4, 5, 6 or 7. The same as
 * esp_flash_firmware_checked without a report. */
esp_error_t esp_flash_firmware(const char* port, const uint8_t* firmware, size_t firmwareLen,
                               const uint8_t* bootloader, size_t bootloaderLen,
                               const uint8_t* partitions, size_t partitionsLen,
                               const uint8_t* bootApp, size_t bootAppLen, const uint8_t* stub,
                               size_t stubLen, int fullFlash, int eraseAll,
                               const char* expectedVersion, esp_progress_cb progress,
                               esp_log_cb log);

/* esp_flash_firmware, the same job byte for byte, line for line, code for code; when
 * report is not null it is filled after the job, on every return. While the version
 * is confirmed, everything the machine prints is kept (the two seconds after the
 * restart are read instead of slept through, ending at the same moment) and judged.
 * listened is 0 when the job did not confirm: a failure before the restart, or no
 * expected version. The result stays 0 whatever the verdict. */
esp_error_t esp_flash_firmware_checked(const char* port, const uint8_t* firmware,
                                       size_t firmwareLen, const uint8_t* bootloader,
                                       size_t bootloaderLen, const uint8_t* partitions,
                                       size_t partitionsLen, const uint8_t* bootApp,
                                       size_t bootAppLen, const uint8_t* stub, size_t stubLen,
                                       int fullFlash, int eraseAll, const char* expectedVersion,
                                       esp_progress_cb progress, esp_log_cb log,
                                       esp_startup_report* report);

/* Opens the port, listens to the restarting firmware (1.5 s), asks it to replay its
 * start-up messages ("$SS", up to 1.5 s), asks for its version once ("$I", a drain
 * of at most 2 s and 2 s for the answer), and classifies; the report is filled in
 * every case (a null report is allowed). Returns 0, or 2 when the port cannot be
 * opened (same open rules and log lines as the other entry points: refused when
 * another program holds it; "Failed to open port"). Logs nothing else. The whole
 * check ends within 7.5 s of the call; it never writes anything but "$SS\n"
 * and "$I\n". expectedVersion null or empty: any version counts as running. */
esp_error_t esp_check_startup(const char* port, const char* expectedVersion,
                              esp_startup_report* report, esp_log_cb log);

/* Uploads a configuration file as config.yaml over XModem and restarts the
 * firmware. Logs only a refused buffer or a port in use. Returns 0, 2 or 8. */
esp_error_t esp_upload_config(const char* port, const uint8_t* data, size_t length,
                              esp_progress_cb progress, esp_log_cb log);

/* Version text of the running firmware (possibly empty), or null. */
char* esp_query_version(const char* port);

/* Path of the first USB serial port with these ids, or null. Opens nothing. */
char* esp_detect_device(uint16_t vendorId, uint16_t productId);

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
