var limits = {default: 5, class: 3};
function Gain_changed() {
    Level.floatValue = limits.default;
}
