function Gain_changed() {
    console.log("gain " + Gain.floatValue);
    setTimeout(function () {
        Level.floatValue = 1;
    }, 10);
}
