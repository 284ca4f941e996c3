// What may fail is caught.
function check(value) {
    if (value < 0)
        throw new Error("below zero");
    return Math.sqrt(value);
}

function Gain_changed() {
    try {
        Level.floatValue = check(Gain.floatValue);
    } catch (fault) {
        Comment.stringValue = fault.message;
    } finally {
        Squelch.boolValue = true;
    }
}
