# Makes the table of docs/performance.md out of what the benchmarks have written: the medians of all runs.
# A budget is a time for ours, in the unit of the work, or a limit of the ratio of ours to the rival.

def works: [
    {name: "HotNumbers", time: 50,   text: "50 µs"},
    {name: "HotPairs",   time: 1000, text: "1 ms"},
    {name: "PairedOnce", time: 1000, text: "1 ms"},
    {name: "Repeaters",  time: 1000, text: "1 ms"},
    {name: "NoHitters",  time: 1000, text: "1 ms"},
    {name: "GameSwitch", time: 10,   text: "10 ms beside the flushes"},
    {name: "SavePlays",  ratio: 1.3, text: "1.3 times the rival"},
    {name: "Shuffle",    time: 20,   text: "20 ms"},
    {name: "FullWheel",  time: 2,    text: "2 ms"},
    {name: "Guarantee",  time: 1000, text: "1 s"},
    {name: "RedrawBoards", time: 16, text: "16 ms"},
    {name: "ScrollLog",  time: 2,    text: "2 ms a key"},
    {name: "TypePick",   time: 2,    text: "2 ms a key"},
    {name: "Import",     ratio: 1.5, text: "1.5 times the rival beside the flushes"},
    {name: "DataReport", time: 1000, text: "1 s"},
    {name: "Start",      ratio: 1.25, text: "1.25 times the rival"}
];

def digits($count): . * pow(10; $count) | round / pow(10; $count) | tostring;
def shown: if . >= 100 then digits(0) elif . >= 10 then digits(1) elif . >= 1 then digits(2) else digits(3) end;
def unit: {us: "µs", ms: "ms"}[.time_unit];
def time: "\(.real_time | shown) \(unit)";

(.benchmarks | map(select(.aggregate_name == "median") | {key: .run_name, value: .}) | from_entries) as $medians
| "Medians of \($runs) runs, \(.context.date | sub("T.*"; "")), load average before \(.context.load_avg[0] // 0 | digits(1)).",
  "",
  "| Work | Budget | Ours | Rival | Ours / rival | Held |",
  "|---|---|---|---|---|---|",
  (works[]
   | . as $work
   | $medians["\(.name)/ours"] as $ours
   | $medians["\(.name)/rival"] as $rival
   | if $ours == null or $rival == null then
         "| `\(.name)` | \(.text) | not measured | | | |"
     else
         ($ours.real_time / $rival.real_time) as $ratio
         | (if $work.time then $ours.real_time <= $work.time else $ratio <= $work.ratio end) as $held
         | "| `\(.name)` | \(.text) | \($ours | time) | \($rival | time) | \($ratio | shown)"
           + " | \(if $held then "yes" else "no" end) |"
     end),
  (["HotPairs", "PairedOnce", "Repeaters", "NoHitters"]
   | map($medians["\(.)/walk"] as $walk | select($walk) | "`\(.)` \($walk | time)")
   | if length > 0 then "", "The plain walks: \(join(", "))." else empty end),
  ($medians["HotPairs/beyond"] // empty
   | "", "`HotPairs` where there are more pairs than it takes, up to the failure: \(time)."),
  ($medians["GameSwitch/ours"].flushes_ms // empty
   | "", "The flushes of the slot that a switch stores, which are not in its time: \(shown) ms."),
  ($medians["Import/ours"].flushes_ms // empty
   | "", "The flushes of an import, which are not in its time: \(shown) ms."),
  ($medians["Import/sqlite"] // empty
   | "", "`Import` by SQLite\u0027s shell, its start included, without flushes: \(time)."),
  ($medians["Start/empty"] // empty
   | "", "The rival of `Start` without the word in its window: \(time).")
