// let x = () => `text`; class, for (a of b): in comments nothing is looked at.
/* const y = [...z]; */
var of = "let's write => and ...";
var pattern = /let|=>|`/;
var async = {let: 1, of: 2, get: 3};

function Comment_changed() {
    var parts = Comment.stringValue.match(pattern) ? of : "`none`";
    ChannelName.stringValue = parts + async.of / 2 + "/" + async.get;
}
