function Demodulaton_changed() {
    Squelch.boolValue = Demodulation.GetCurrentName() === "FM";
}
