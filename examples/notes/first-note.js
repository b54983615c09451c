var scenario = [
    {
        "command": "newNote,",
        "condition": "click,",
        "followWindow": "MainWindow",
        "hint": qsTr("<b>Welcome!</b> You will write a note and find a word in it. Press <b>Next</b> to begin."),
        "icon": "eye"
    },
    {
        "condition": "words,3",
        "followWindow": "MainWindow",
        "hint": qsTr("Click here and <b>write</b> something, three words or more."),
        "icon": "keyboard",
        "x": 120,
        "y": 120
    },
    {
        "hint": qsTr("Finding a word"),
        "group": [
        {
            "condition": "windowState,Find,open",
            "followWindow": "MainWindow",
            "hint": qsTr("Open <b>Find</b>."),
            "icon": "click",
            "x": 79,
            "y": 38
        },
        {
            "condition": "textLength,>=,3",
            "followWindow": "Find",
            "hint": qsTr("Type the beginning of a <b>word</b>."),
            "icon": "keyboard",
            "x": 120,
            "y": 22
        },
        {
            "condition": "checked,matchCase,1",
            "followWindow": "Find",
            "hint": qsTr("<b>Capitals</b> shall count."),
            "icon": "click",
            "x": 30,
            "y": 50
        },
        {
            "condition": "pressed,0,0",
            "followWindow": "Find",
            "hint": qsTr("<b>Find</b> it."),
            "icon": "click",
            "x": 180,
            "y": 80
        },
        {
            "condition": "windowState,Find,close",
            "followWindow": "Find",
            "hint": qsTr("<b>Close</b> the dialog."),
            "icon": "click",
            "x": 260,
            "y": 80
        }
]
    },
    {
        "condition": "click,",
        "followWindow": "MainWindow",
        "hint": qsTr("<b>Well done!</b> The word is marked in your note."),
        "icon": "eye"
    }
];
