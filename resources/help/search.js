// SPDX-License-Identifier: GPL-2.0-or-later
// Shows the topics that hold every typed word, in their title or among their other words.
"use strict";

const box = document.getElementById("words");
const topics = Array.from(document.querySelectorAll("#topics li"));
const none = document.getElementById("none");

function showMatches() {
    const words = box.value.toLowerCase().split(/\s+/).filter((word) => word !== "");
    let shown = 0;
    for (const topic of topics) {
        const text = (topic.textContent + " " + topic.dataset.words).toLowerCase();
        topic.hidden = !words.every((word) => text.includes(word));
        shown += topic.hidden ? 0 : 1;
    }
    none.hidden = shown > 0;
}

box.addEventListener("input", showMatches);
showMatches();
