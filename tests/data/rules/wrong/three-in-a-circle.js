function Overlap_changed() {
    Level.floatValue = Overlap.value;
}
function Level_changed() {
    Azimuth.floatValue = Math.max(0, Level.floatValue);
}
function Azimuth_changed() {
    Overlap.value = Math.min(100, Math.round(Azimuth.floatValue));
}
