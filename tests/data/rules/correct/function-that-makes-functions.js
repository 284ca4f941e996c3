// A closure remembers its factor.
function scaler(factor) {
    return function (value) {
        return value * factor;
    };
}

var half = scaler(0.5);

function Overlap_changed() {
    Gain.floatValue = half(Overlap.value);
}
