// One case for each mode.
function Mode_changed() {
    switch (Mode.GetCurrentName()) {
    case "Frequency":
        Span.floatValue = 0;
        break;
    case "Panorama":
    case "Memory":
        Span.floatValue = 200000;
        break;
    default:
        Comment.stringValue = "unknown mode";
    }
}
