function Priority_changed() {
    if (Priority.value > 9)
        throw new Error("too important");
}
