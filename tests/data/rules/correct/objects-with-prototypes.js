// Constructors and prototypes instead of classes.
function Range(low, high) {
    this.low = low;
    this.high = high;
}
Range.prototype.contains = function (value) {
    return value >= this.low && value <= this.high;
};

var MARINE = new Range(2000000, 3000000);

function Frequency_changed() {
    Squelch.boolValue = MARINE.contains(Frequency.floatValue);
}
