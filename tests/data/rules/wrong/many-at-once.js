var runs = 0;
function Mode_changed() {
    runs += 1;
    Level.floatValue = 500;
    Bandwidth.SelectItemByIndex(2);
    Antena.SelectItemByIndex(11);
}
function Mode_change() {
}
