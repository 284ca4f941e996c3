function next(value) {
    return next(value + 1);
}
function Priority_changed() {
    Priority.value = next(Priority.value);
}
