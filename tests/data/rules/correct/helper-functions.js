// Rules share what they have in common.
function isVoice() {
    var name = Demodulation.GetCurrentName();
    return name === "AM" || name === "FM" || name === "USB" || name === "LSB";
}

function apply() {
    Squelch.boolValue = isVoice();
    Muted.boolValue = !isVoice();
}

function Demodulation_changed() {
    apply();
}

function Mode_changed() {
    apply();
}
