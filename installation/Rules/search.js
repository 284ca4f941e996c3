// Rules of search jobs: what follows when one value of a sub-job is changed. Each value is an object named by its
// parameter set and field; the function of that name with "_changed" behind it is called after every change.
// Receivers need not have all of them.

// Bandwidth in Hz that goes with a demodulation.
var BANDWIDTHS = {AM: 9000, FM: 15000, USB: 2700, LSB: 2700, ISB: 6000, CW: 500};

// The bandwidth follows the demodulation.
function ADemSettings_Demodulation_changed() {
    var bandwidth = BANDWIDTHS[ADemSettings_Demodulation.GetCurrentName()];
    if (bandwidth !== undefined && ADemSettings_Bandwidth.GetItemName(bandwidth) !== "")
        ADemSettings_Bandwidth.SelectItemByIndex(bandwidth);
}

// A scan looks at no more than its steps are wide. Their width is a choice on some receivers, a number on others.
function ScanSettings_Range_StepWidth_changed() {
    var isNumber = "floatValue" in ScanSettings_Range_StepWidth;
    var step = isNumber ? ScanSettings_Range_StepWidth.floatValue : ScanSettings_Range_StepWidth.GetCurrentValue();
    if (step > 0)
        ScanSettings_Range_Bandwidth.floatValue = step;
}

// The spectrum shows no more than the tuner lets through.
function TunerSettings_Bandwidth_changed() {
    if (typeof FFTSettings_Span === "undefined" || TunerSettings_Bandwidth.floatValue <= 0)
        return;
    if (FFTSettings_Span.floatValue > TunerSettings_Bandwidth.floatValue)
        FFTSettings_Span.floatValue = TunerSettings_Bandwidth.floatValue;
}
