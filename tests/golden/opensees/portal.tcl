# title: Portal
# subtitle: 
# calc: 
# job no.: 
# initials: VYN
# This file was originally written by VYN version 1.0.0 on Saturday, 21 Nov 2026 at 09:00:00


wipe
model BasicBuilder -ndm 3 -ndf 6

# length=m
# force=N


# node coordinates
node 1 0 0 0
node 2 0 0 3
node 3 4 0 3
node 4 4 0 0

# node restraints
fix 1111111
fix 4111010

# material
uniaxialMaterial Elastic 1 2e+11
uniaxialMaterial ElasticPP 2 2e+11 0.002

# sections
section Elastic 1 2e+11 0.01008 2.1364e-05 0.000277596 8e+10 6.688e-07
section Fiber 2 {
patch quad 2 8 2 -0.05 -0.1 0.05 -0.1 0.05 -0.09 -0.05 -0.09
patch quad 2 8 2 -0.05 0.09 0.05 0.09 0.05 0.1 -0.05 0.1
patch quad 2 2 8 -0.05 -0.09 -0.042 -0.09 -0.042 0.09 -0.05 0.09
patch quad 2 2 8 0.042 -0.09 0.05 -0.09 0.05 0.09 0.042 0.09
}

# 2D element sections

# element transformations
geomTransf Linear 1 -1 0 0
geomTransf Linear 2 0 0 1
geomTransf Linear 3 -1 0 0

# elements
element nonlinearBeamColumn 1 1 2 5 2 1
element elasticBeamColumn 2 2 3 0.01008 2e+11 8e+10 6.688e-07 0.000277596 2.1364e-05 2
element nonlinearBeamColumn 3 4 3 5 2 3
element corotTruss 4 1 3 0.01008 1

# links and rigid constraints
rigidDiaphragm 3 2 3

# joints

# node loads
pattern Plain 1 Linear {
# load case 1
load 2 8000 0 0 0 0 0
}

# beam loads
pattern Plain 1 Linear {
# load case 1
eleLoad -ele 2 -type -beamUniform 0 -12500
}
#end


# rest of commands
algorithm Linear
numberer RCM
system ProfileSPD
constraints Transformation
integrator LoadControl 1
analysis Static
analyze 2
