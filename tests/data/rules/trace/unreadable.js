function TunerSettings_Bandwidth_changed() {
    let wide = true;
}
