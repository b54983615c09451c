var scenario = [
    {
        "condition": "click,",
        "hint": qsTr("Welcome"),
        "followWindow": "MainWindow",
        "x": 100,
        "y": 300
    }
];