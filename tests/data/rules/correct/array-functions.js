// Arrays have forEach, map, filter and reduce.
function Overlap_changed() {
    var sum = [1, 2, 3, 4].filter(function (n) {
        return n % 2 === 0;
    }).map(function (n) {
        return n * Overlap.value / 10;
    }).reduce(function (a, b) {
        return a + b;
    }, 0);
    var names = [];
    ["a", "b"].forEach(function (name) {
        names.push(name);
    });
    Level.floatValue = Math.min(sum, Level.floatMaxValue);
    Comment.stringValue = names.join("-");
}
