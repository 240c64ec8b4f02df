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
 * 8 configuration upload or file download failed (and a flash read that gave
 * no snapshot), 9 time-out (only a flash read that went silent returns it).
 * 1 and 10 are reserved for the application. */
typedef uint32_t esp_error_t;

/* The values of esp_error_t by name. */
enum esp_result {
    ESP_RESULT_OK = 0,
    ESP_RESULT_NO_DEVICE = 1, /* reserved for the application: no device found */
    ESP_RESULT_PORT_NOT_OPENED = 2,
    ESP_RESULT_NO_SYNC = 3,
    ESP_RESULT_WRONG_CHIP = 4, /* or secure boot or flash encryption enabled */
    ESP_RESULT_STUB_FAILED = 5,
    ESP_RESULT_WRITE_FAILED = 6, /* the whole-flash erase or a region write */
    ESP_RESULT_VERIFY_FAILED = 7,
    ESP_RESULT_CONFIG_FAILED = 8, /* configuration upload or file download */
    ESP_RESULT_TIMED_OUT = 9,     /* reserved for the application */
    ESP_RESULT_DISCONNECTED = 10  /* reserved for the application */
};

/* The plotter's USB ids: the ESP32-S3's built-in USB serial interface. */
enum esp_plotter_usb_ids { ESP_PLOTTER_VENDOR_ID = 0x303A, ESP_PLOTTER_PRODUCT_ID = 0x1001 };

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
 * every case (a null report is allowed). Each step is shortened so that the check
 * ends within timeoutMs (7000 gives every step its whole time). Returns 0, or 2
 * when the port cannot be opened (same open rules and log lines as the other
 * entry points: refused when another program holds it; "Failed to open port").
 * Logs nothing else; it never writes anything but "$SS\n" and "$I\n".
 * expectedVersion null or empty: any version counts as running. */
esp_error_t esp_check_startup(const char* port, const char* expectedVersion, int timeoutMs,
                              esp_startup_report* report, esp_log_cb log);

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

/* Why esp_download_file ended without a file: the cause its log line names, as data. */
enum esp_download_failure {
    ESP_DOWNLOAD_OK = 0,
    ESP_DOWNLOAD_INVALID_ARGUMENTS = 1, /* a null name or output pointer */
    ESP_DOWNLOAD_PORT_NOT_OPENED = 2,
    ESP_DOWNLOAD_INVALID_NAME = 3, /* empty, or holds a line break */
    ESP_DOWNLOAD_COMMAND_NOT_SENT = 4,
    ESP_DOWNLOAD_NO_BLOCK = 5,        /* the firmware never started sending */
    ESP_DOWNLOAD_CANCELLED = 6,       /* the firmware cancelled the transfer */
    ESP_DOWNLOAD_TOO_LARGE = 7,       /* more than 16 MiB arrived */
    ESP_DOWNLOAD_BLOCK_FAILED = 8,    /* one block failed 25 times */
    ESP_DOWNLOAD_ANSWER_NOT_SENT = 9, /* an acknowledgement could not be written */
    ESP_DOWNLOAD_OUT_OF_MEMORY = 10
};

typedef struct esp_download_status {
    int failure;    /* enum esp_download_failure */
    uint32_t block; /* for ESP_DOWNLOAD_BLOCK_FAILED: the block, counted from 1; else 0 */
} esp_download_status;

/* Downloads the file `name` (for example "config.yaml") from the firmware's file
 * system over XModem. On 0, *data holds a malloc'd copy of the file that the
 * caller releases with free(), and *length its size; an empty file gives length 0
 * and may give a null pointer. On failure *data is null, *length 0, one log line
 * names the cause, and so does *status when status is not null; a transfer it
 * gave up on is cancelled and the console's line ended, so the next command is
 * understood. Returns 0, 2 (port not opened) or 8 (download failed, also for a
 * missing name or null output pointers). */
esp_error_t esp_download_file(const char* port, const char* name, uint8_t** data, size_t* length,
                              esp_progress_cb progress, esp_log_cb log,
                              esp_download_status* status);

/* ---- The whole flash: a snapshot, and writing one back ---- */

/* Receives bytes in order, as they arrive. Returns 0 to go on, anything else to stop. */
typedef int (*esp_data_cb)(void* context, const uint8_t* data, size_t length);

/* Why esp_snapshot_machine ended. */
enum esp_snapshot_end {
    ESP_SNAPSHOT_DONE = 0,              /* every byte read, and the stub's MD5 of them matched */
    ESP_SNAPSHOT_INVALID_ARGUMENTS = 1, /* a null sink, or a null stub with a length */
    ESP_SNAPSHOT_NOT_STARTED = 2,       /* port, sync, chip, fuses or stub: the result tells */
    ESP_SNAPSHOT_NOTHING_TO_KEEP = 3,   /* no bootloader header at 0x0 and no partition table
                                           at 0x8000: an erased chip */
    ESP_SNAPSHOT_READ_REFUSED = 4,      /* READ_FLASH was not accepted */
    ESP_SNAPSHOT_NO_DATA = 5,           /* 5 s passed without the next packet or the digest */
    ESP_SNAPSHOT_BROKEN = 6,            /* a packet or digest of the wrong size or unreadable */
    ESP_SNAPSHOT_MD5_MISMATCH = 7,      /* the stub's MD5 differs from that of the bytes read */
    ESP_SNAPSHOT_STOPPED = 8            /* the sink asked to stop */
};

/* Filled by esp_snapshot_machine on every return. */
typedef struct esp_snapshot_status {
    int end;           /* enum esp_snapshot_end */
    uint64_t size;     /* the whole flash in bytes once decided, else 0 */
    uint64_t received; /* bytes handed to the sink */
} esp_snapshot_status;

/* Reads the whole flash into `sink` (called with `sinkContext`), from address 0
 * up. It starts as esp_flash_firmware does (the same open rules, 500 ms, bootloader
 * entry, chip and fuse checks, stub and attach, with the same log lines), reads the
 * bootloader header and the partition table, decides the size (what the header at
 * 0x0 declares, 1 to 16 MiB; without one, the end of the last partition of a valid
 * table at 0x8000; with neither nothing is worth keeping) and reads the rest in
 * acknowledged 4096-byte packets, checked by the stub's MD5. Once the stub ran, the
 * chip is reset into its firmware on every return; nothing is ever written.
 * progress gets the fraction of the size read ("Reading flash"). The bytes given to
 * the sink are a snapshot only when the result is 0: on any other result the caller
 * discards them. With report (filled as by esp_flash_firmware_checked, on every return),
 * after a successful read the job listens to the restart and asks for the version
 * (2 s, then up to three queries of 2 s, 1 s apart), logging nothing; listened is 0
 * on every other return. Returns 0; 2, 3, 4, 5 as esp_flash_firmware; 7 the MD5
 * differs; 8 no snapshot (nothing to keep, read refused or broken, sink stopped, or
 * invalid arguments: a null sink gives 8, a null stub with a length 5); 9 the read
 * went silent. status may be null. */
esp_error_t esp_snapshot_machine(const char* port, const uint8_t* stub, size_t stubLen,
                                 esp_data_cb sink, void* sinkContext, esp_progress_cb progress,
                                 esp_log_cb log, esp_snapshot_status* status,
                                 esp_startup_report* report);

/* Writes a whole-flash snapshot back as one region at 0x0 and verifies it by MD5,
 * then FLASH_END and a reset into its firmware. A snapshot that is not one (a size
 * other than 1, 2, 4, 8 or 16 MiB, no image header at 0x0, a header for another
 * chip) is refused before the port is opened, with one line ("Snapshot cannot be
 * used: " and the reason) and 6; a null buffer with a length is refused as by
 * esp_flash_firmware (6, or 5 for the stub). The caller decides whether a snapshot
 * that carries the development marker may be written. The start is that of
 * esp_flash_firmware, with its lines; then "Restoring whole flash: <n> bytes at
 * 0x00000", the loader's write and verify lines, with progress "Flashing" from
 * ESP_PROGRESS_REGIONS_START over ESP_PROGRESS_REGIONS_SPAN. With report, after
 * the reset the job listens as esp_snapshot_machine does and judges the start
 * against expectedVersion (null or empty: any version counts as running).
 * Returns 0, 2, 3, 4, 5, 6 or 7. */
esp_error_t esp_restore_machine(const char* port, const uint8_t* snapshot, size_t snapshotLen,
                                const uint8_t* stub, size_t stubLen, const char* expectedVersion,
                                esp_progress_cb progress, esp_log_cb log,
                                esp_startup_report* report);

/* ---- Why a port cannot be used, and what is attached over USB ---- */

/* The first cause found by esp_check_port, in the order of the checks. */
enum esp_port_problem {
    ESP_PORT_OK = 0,         /* nothing found that would keep a job from opening it */
    ESP_PORT_MISSING = 1,    /* no node at the path (ENOENT) */
    ESP_PORT_NOT_SERIAL = 2, /* a file, a folder or a device that is no serial line (ENOTTY) */
    ESP_PORT_PERMISSION = 3, /* the user may not read and write the node (EACCES, EPERM) */
    ESP_PORT_HELD = 4,       /* another program has the node open (EBUSY) */
    ESP_PORT_UNPLUGGED = 5   /* the node is there, its device answers no open (EIO, ENXIO) */
};

/* How far esp_check_port may go. */
enum esp_port_probe {
    /* Never opens the node: stat, access(2) with the real ids, /proc/tty/drivers
     * and the scan of /proc for holders. Safe to repeat while a plotter is
     * attached (opening a USB serial node raises DTR and RTS, which the chip may
     * take as a reset). Cannot tell an unplugged device. */
    ESP_PROBE_LOOK = 0,
    /* When looking finds nothing, also opens the node (O_RDWR | O_NOCTTY |
     * O_NONBLOCK), reads its terminal attributes and closes it at once. For use
     * after a job's own open has failed. */
    ESP_PROBE_OPEN = 1
};

/* Filled by esp_check_port. Texts are NUL-terminated and cut to fit. */
typedef struct esp_port_check {
    int problem; /* enum esp_port_problem */
    int error;   /* the errno behind it, 0 for ESP_PORT_OK */
    /* The next six are filled whenever the node exists, whatever the problem. */
    char owner[64]; /* the node's owner and group names, numbers when unnamed */
    char group[64];
    unsigned mode;     /* the node's permission bits, e.g. 0660 */
    char user[64];     /* the real user's name, the number when unnamed */
    int userInGroup;   /* 1: the account database puts the user in `group` */
    int groupInEffect; /* 1: this process has `group`; a user who was added to it
                          and has not logged in again has 0 here, 1 above */
    int holderPid;     /* ESP_PORT_HELD: the other program, 0 when it cannot be named */
    char holderName[64];
} esp_port_check;

/* Finds why `port` cannot be used, with `probe` an enum esp_port_probe. Writes no
 * byte to the port and logs nothing. Returns out->problem; -1 when out is null
 * (a null port gives ESP_PORT_MISSING with EINVAL). Safe on any thread, also
 * while a job runs. */
int esp_check_port(const char* port, int probe, esp_port_check* out);

/* One USB device seen by esp_survey_usb_serial, with one of its serial ports.
 * Texts are NUL-terminated and cut to fit; empty when absent. */
typedef struct esp_usb_serial_device {
    uint16_t vendorId;
    uint16_t productId;
    char product[128]; /* the device's product name */
    char serial[128];  /* its serial number */
    char driver[64];   /* the driver bound to the port's interface, e.g. "cdc_acm" */
    char path[256];    /* the port's device node, empty when none was made */
} esp_usb_serial_device;

/* Lists what is attached over USB that matters for finding the plotter's port:
 * every device with the plotter's ids whether or not a port was made for it, and every
 * other USB device that has a serial port (one entry per port; a plotter without
 * one gives an entry with an empty path and the driver of its first interface).
 * `sysfsRoot` (null: "/sys") is the folder holding bus/usb/devices and class/tty;
 * nodes are looked for under `devRoot` (null: "/dev"). Fills at most `capacity`
 * entries of `devices` (which may be null when capacity is 0) and returns how
 * many were found, which may be more. Reads sysfs only; opens no port. */
size_t esp_survey_usb_serial(const char* sysfsRoot, const char* devRoot,
                             esp_usb_serial_device* devices, size_t capacity);

#ifdef __cplusplus
}
#endif

#endif
