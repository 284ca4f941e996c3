Gain.floatValue = 30;
Squelch.boolValue = true;
function Mode_changed() {
    Gain.floatValue = 0;
}
