# Run by screen-reader.sh as an ordinary user on the sample queues: keys, and what is to be said after
# each of them. Ends with 75 if it is to be tried again.
set -u
said=/tmp/said # what the speech of screen-reader.sh is given
trap 'exec 2>/dev/null; kill -KILL $(jobs -p); wait' EXIT
export DISPLAY=:5 QT_ACCESSIBILITY=1 QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1

# Waits for something in the background; ends the session if it doesn't come.
until_true()
{
    for _ in {1..100}; do
        if eval "$1"; then return; fi
        sleep 0.2
    done
    echo "never so: $1" >&2
    exit 1
}

# hear KEY PATTERN: what is said after the key has to match.
hear()
{
    local before
    before=$(wc -l <$said)
    xdotool key "$1"
    for _ in {1..50}; do
        sleep 0.2
        if tail -n "+$((before + 1))" $said | grep -qE -- "$2"; then return; fi
    done
    echo "after $1 nobody says \"$2\", but:" >&2
    tail -n "+$((before + 1))" $said >&2
    exit 1
}

Xvfb :5 -screen 0 1366x768x24 >/dev/null 2>&1 &
until_true '[ -S /tmp/.X11-unix/X5 ]'
openbox >/dev/null 2>&1 &
/usr/libexec/at-spi-bus-launcher --launch-immediately >/dev/null 2>&1 &
mkdir -p "$XDG_RUNTIME_DIR/speech-dispatcher"
speech-dispatcher -s -t 0 >/dev/null 2>&1 &
until_true '[ -S $XDG_RUNTIME_DIR/speech-dispatcher/speechd.sock ]'
orca >/dev/null 2>&1 &
until_true 'grep -q "Screen reader on" $said 2>/dev/null'
sleep 5
brixola-press-desk 2>/dev/null &
sleep 5
# Now and then a new bus gives nobody any events.
if ! grep -q '^Brixola Press Desk' $said; then exit 75; fi

# A printer; some versions say "line" for "_". One is listed twice, so that the third row is Office_C3.
hear F6 "table with"
hear Down "Dual.*Path"
hear Down "Dual.*Path"
hear Down "Office.*C3"
# Its paper.
hear shift+F6 "page tab list"
hear Down "Basic"
hear F6 "A4"
hear End "Envelope C5"
hear Home "A3"
# Both sides: arrows move, Space picks.
hear Tab "Media type"
hear Tab "Source"
hear Tab "Destination"
hear Tab "Collate"
hear Tab "Duplex"
hear Right "Long edge"
hear space "selected"
# What a choice switches off is said where it was made.
for _ in {1..4}; do hear shift+Tab ""; done
hear shift+Tab "A3"
hear End "Envelope C5 switched off"
hear Home "A3"
# A staple, and what is wrong in a field.
hear shift+F6 "page tab list"
hear Down "Layout"
hear Down "Finishing"
hear F6 "Separation"
hear Tab "Bi.*Fold"
hear Tab "Staple check box not checked"
hear space "checked"
hear Tab "Staple location"
hear shift+F6 "page tab list"
hear Down "Imaging"
hear Down "Publishing"
hear F6 "Cover mode"
hear Tab "Page insert"
hear space "checked"
hear Tab "Print onto front"
hear Tab "Please type a page range"
hear shift+Tab "Print onto front"
hear shift+Tab "Page insert"
hear space "not checked"
# Apply.
hear alt+a "Settings applied."
hear Return "Page insert check box not checked"
