# Colours by menu, saved and read back; schemes from files; the list of backgrounds.
start
strict on

# --- One slot: cancelled, then chosen. The entry is ticked either way.
cancel
click mnuColInputBack
expect-state mnuColInputBack checked
colour 255
click mnuColInputFrameText
expect-state mnuColInputBack unchecked
expect-state mnuColInputFrameText checked
expect-colour fraRecord 2 1
expect-no-message
click mnuSaveColor
start
expect-colour fraRecord 2 1
expect-state mnuColInputFrameText unchecked

# --- A scheme of the suite, and a file that is none.
file TRData\no-such-file.txt
answer OK
click mnuLoadColor
expect-message holds no twelve colours

# --- The schemes by their names: seen at once, kept only by a save.
click mnuDark
expect-state mnuDark checked
expect-colour fraRecord 2 1
click mnuColours
expect-state mnuDark checked
click mnuClassic
expect-state mnuDark unchecked
expect-state mnuClassic checked
expect-no-message
start
expect-colour fraRecord 2 1
expect-state mnuClassic unchecked

# --- Backgrounds: one kept, one not, the list not closed at first, then closed.
colour 100
answer Yes
colour 200
answer No
cancel
answer No
cancel
answer Yes
click mnuBackgroundList
expect-box " 1Color option #" "Save this color?" YesNo None
expect-box " 2Color option #" "Save this color?" YesNo None
expect-box " 1 Color Options on File" "Close file??" YesNo None
expect-box " 1 Color Options on File" "Close file??" YesNo None
quit
