function Mode_changed() {
    Math.PI = 3;
    undefined = null;
}
