function Mode_changed() {
    Demodulation.value = 3;
    Gain.FloatValue = 5;
    ChannelName.stateNormal = false;
}
