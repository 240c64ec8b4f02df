#!/usr/bin/env bash
# one_core_test.sh <program>...: no program defines core symbols of its own.
set -euo pipefail
status=0
for program in "$@"; do
    found=$(nm -C --defined-only "$program" |
        grep -E " (SerialPort|esp::|fluidnc::|slip::|listESPPorts|ESPPortInfo)" | head -5 || true)
    if [ -n "$found" ]; then
        echo "FAILED: $(basename "$program") carries the core:"
        echo "$found"
        status=1
    fi
done
exit $status
