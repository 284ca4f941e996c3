// A rule may correct the value that set it off; it does not run again.
function Azimuth_changed() {
    Azimuth.floatValue = Math.round(Azimuth.floatValue / 5) * 5;
}
