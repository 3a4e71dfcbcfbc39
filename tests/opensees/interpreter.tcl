# Runs an OpenSees script with the argument rules of the interpreter's own commands and prints what
# it would hold, one thing a line: "node 1 0 0 0". What the interpreter refuses is a line "REFUSED",
# what it takes in silence without effect a line "NO EFFECT".
#
#   tclsh interpreter.tcl script.tcl

proc refuse {command reason} {
    puts "REFUSED $command: $reason"
}

# Stops the command that calls it.
proc fault {reason} {
    return -code error -errorcode FAULT $reason
}

proc needInt {value} {
    if {![string is integer -strict $value]} { fault "not an integer: $value" }
}

proc needReals {values} {
    foreach value $values {
        if {![string is double -strict $value]} { fault "not a number: $value" }
    }
}

proc needKnown {kind tag} {
    needInt $tag
    if {![info exists ::known($kind,$tag)]} { fault "no $kind $tag" }
}

proc define {kind tag} {
    needInt $tag
    if {[info exists ::known($kind,$tag)]} { fault "$kind $tag is there already" }
    set ::known($kind,$tag) 1
}

proc needCount {values args} {
    if {[lsearch -integer $args [llength $values]] < 0} { fault "[llength $values] values" }
}

# Defines a command whose body may call fault.
proc command {name body} {
    proc $name {args} [format {
        if {[catch {apply {{args} {%s}} {*}$args} message options]} {
            if {[dict get $options -errorcode] ne "FAULT"} { return -options $options $message }
            refuse "%s [string map {\n { }} [lrange $args 0 1]]" $message
        }
    } $body $name]
}

command wipe { needCount $args 0 }
command model {
    if {$args ne "BasicBuilder -ndm 3 -ndf 6"} { fault $args }
}
command node {
    needCount $args 4
    needReals [lrange $args 1 end]
    define node [lindex $args 0]
    puts "node $args"
}
command fix {
    if {[llength $args] == 1} {
        puts "NO EFFECT fix $args"
        return
    }
    needCount $args 7
    needKnown node [lindex $args 0]
    puts "fix $args"
}

set counts(Elastic) {1}
set counts(ElasticPP) {2}
set counts(Hardening) {4}
set counts(Hysteretic) {12 13 16 17}
set counts(Viscous) {2}
set counts(Concrete01) {4}
set counts(Concrete02) {7}
set counts(Concrete03) {10}
set counts(Concrete04) {4 6 7}
set counts(Steel01) {3 7}
set counts(Steel02) {3 6 10}

command uniaxialMaterial {
    set values [lassign $args type tag]
    switch $type {
        ReinforcingSteel {
            needReals [lrange $values 0 5]
            set groups [lrange $values 6 end]
            array set sizes {-GABuck 4 -DMBuck 1 -CMFatigue 3 -IsoHard 2 -MPCurveParams 3}
            while {[llength $groups] > 0} {
                set groups [lassign $groups group]
                if {![info exists sizes($group)]} { fault "group $group" }
                needReals [lrange $groups 0 [expr {$sizes($group) - 1}]]
                if {[llength $groups] < $sizes($group)} { fault "values after $group" }
                set groups [lrange $groups $sizes($group) end]
            }
        }
        BarSlip {
            needCount $values 14
            needReals [lrange $values 0 9]
            needInt [lindex $values 7]
        }
        LimitState {
            if {[lsearch {17 20} [llength $values]] < 0} { fault "[llength $values] values" }
        }
        default {
            if {![info exists ::counts($type)]} { fault "type $type" }
            needCount $values {*}$::counts($type)
            needReals $values
        }
    }
    define uniaxialMaterial $tag
    puts "uniaxialMaterial $args"
}

command section {
    set values [lassign $args type tag]
    switch $type {
        Elastic {
            needCount $values 6
            needReals $values
        }
        ElasticMembranePlateSection {
            needCount $values 3 4
            needReals $values
        }
        Fiber {
            define section $tag
            puts "section Fiber $tag"
            uplevel #0 [lindex $values end]
            if {[lindex $values 0] ne "-GJ"} { fault "no -GJ in a three-dimensional model" }
            return
        }
        default { fault "type $type" }
    }
    define section $tag
    puts "section $args"
}
command patch {
    set values [lassign $args type material]
    needKnown uniaxialMaterial $material
    needInt [lindex $values 0]
    needInt [lindex $values 1]
    needReals $values
    needCount $values [expr {$type eq "quad" ? 10 : 8}]
    if {$type eq "quad"} {
        set area 0.0
        lassign [lrange $values 2 end] y0 z0 y1 z1 y2 z2 y3 z3
        set area [expr {0.5 * (($y2 - $y0) * ($z3 - $z1) - ($z2 - $z0) * ($y3 - $y1))}]
        if {$area <= 0} { fault "clockwise" }
    }
    puts "patch $args"
}

command geomTransf {
    needCount $args 5
    needReals [lrange $args 2 4]
    define geomTransf [lindex $args 1]
    set ::vector([lindex $args 1]) [lrange $args 2 4]
    puts "geomTransf $args"
}
command element {
    set values [lassign $args type tag]
    switch $type {
        elasticBeamColumn { set letters nnrrrrrrt }
        dispBeamColumn - nonlinearBeamColumn { set letters nnist }
        beamWithHinges { set letters nnsrsrrrrrrrt }
        truss - corotTruss { set letters nnrm }
        ShellMITC4 { set letters nnnns }
        quad { fault "in a model of three dimensions" }
        default { fault "type $type" }
    }
    needCount $values [string length $letters]
    foreach value $values letter [split $letters ""] {
        switch $letter {
            n { needKnown node $value }
            m { needKnown uniaxialMaterial $value }
            s { needKnown section $value }
            t { needKnown geomTransf $value }
            i { needInt $value }
            r { needReals $value }
        }
    }
    define element $tag
    puts "element $args"
}

command rigidLink {
    lassign $args type first second
    needCount $args 3
    if {$type ni {beam bar}} { fault "word $type" }
    needKnown node $first
    needKnown node $second
    puts "rigidLink $args"
}
command rigidDiaphragm {
    foreach node [lrange $args 1 end] { needKnown node $node }
    needInt [lindex $args 0]
    if {[lindex $args 0] ni {1 2 3}} { fault "direction [lindex $args 0]" }
    puts "rigidDiaphragm $args"
}
command equalDOF {
    foreach node [lrange $args 0 1] { needKnown node $node }
    foreach freedom [lrange $args 2 end] {
        if {$freedom ni {1 2 3 4 5 6}} { fault "freedom $freedom" }
    }
    puts "equalDOF $args"
}

command pattern {
    lassign $args type tag series body
    needCount $args 4
    if {$type ne "Plain" || $series ne "Linear"} { fault $args }
    set again [catch { define pattern $tag }]
    uplevel #0 $body
    if {$again} { fault "pattern $tag is there already" }
}
command load {
    needCount $args 7
    needKnown node [lindex $args 0]
    needReals [lrange $args 1 end]
    puts "load $args"
}
command eleLoad {
    lassign $args ele tag type kind
    set values [lrange $args 4 end]
    if {$ele ne "-ele" || $type ne "-type"} { fault $args }
    needKnown element $tag
    needReals $values
    switch -- $kind {
        -beamUniform { needCount $values 2 3 }
        -beamPoint { needCount $values 3 4 }
        default { fault $kind }
    }
    puts "eleLoad $args"
}

foreach name {algorithm numberer system constraints integrator analysis analyze} {
    command $name [format { puts "%s $args" } $name]
}
proc unknown {args} {
    refuse [lindex $args 0] "no such command"
}

source -encoding utf-8 [lindex $argv 0]
