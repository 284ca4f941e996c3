// Truth values follow each other.
function Squelch_changed() {
    Muted.boolValue = !Squelch.boolValue;
}
