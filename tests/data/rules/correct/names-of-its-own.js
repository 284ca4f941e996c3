// A function around everything keeps names apart.
var limits = (function () {
    var lowest = 1;
    var highest = 10;
    return {
        clamp: function (value) {
            return Math.max(lowest, Math.min(highest, value));
        }
    };
})();

function Overlap_changed() {
    Priority.value = limits.clamp(Math.round(Overlap.value / 10));
}
