// A rule that sets off others, and one that fails.

function TunerSettings_Bandwidth_changed() {
    TunerSettings_CenterFrequency.floatValue = 8414500;
    nowhere.value = 1;
}

function TunerSettings_CenterFrequency_changed() {
    TunerSettings_ChannelName.stringValue = "Maritime distress";
}
