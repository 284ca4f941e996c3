// Each of the two pushes the other one, but only when it has to.
function Start_changed() {
    if (Start.floatValue > Stop.floatValue)
        Stop.floatValue = Start.floatValue;
}

function Stop_changed() {
    if (Stop.floatValue < Start.floatValue)
        Start.floatValue = Stop.floatValue;
}
