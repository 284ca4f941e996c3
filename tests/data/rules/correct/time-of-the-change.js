// A date is put into a text.
function Mode_changed() {
    var day = new Date(2020, 1, 29);
    day.setDate(day.getDate() + 1);
    Comment.stringValue = day.getFullYear() + "-" + (day.getMonth() + 1);
}
