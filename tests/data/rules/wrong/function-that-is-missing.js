function Muted_changed() {
    Gain.floatValue = Muted.boolValue ? 0 : 30;
}
function alarmSwitch() {
    Gain.floatValue = 30;
}
