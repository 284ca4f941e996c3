// On some receivers a selection, on others a number: ask what it has.
function valueOf(object) {
    if ("floatValue" in object)
        return object.floatValue;
    if (typeof object.GetCurrentValue === "function")
        return object.GetCurrentValue();
    return 0;
}

function Bandwidth_changed() {
    Span.floatValue = valueOf(Bandwidth) + (Gain.stringValue === undefined ? 1 : 0);
}
