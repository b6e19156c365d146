# Completion of morvane for fish. Made by tools/reference_writer; edit the rows, not this file.

function __morvane_wants_name
    set -l words (commandline -opc)
    test (count $words) -eq 2; and test "$words[2]" = help
end

complete -c morvane -f
complete -c morvane -n 'not __morvane_wants_name' -a '(__fish_complete_suffix .macro)'
complete -c morvane -n 'test (count (commandline -opc)) -eq 1' -a help -d 'explains a command, a keyword or a namespace and ends'
complete -c morvane -l version -d 'prints the version and ends'
complete -c morvane -l check -x -a '(__fish_complete_suffix .macro)' -d 'reads a macro without running it, tells each finding and ends'
complete -c morvane -s 'h' -d 'shows the options with their defaults and ends with status 1'
complete -c morvane -s '?' -d 'the same, waiting for the enter key at each section'
complete -c morvane -o 'strict' -d 'as the first argument: no colours, no questions, no waiting'
complete -c morvane -o 'update' -d 'as the first argument: fetches a new version'
complete -c morvane -o optionsfile -x -a '(__fish_complete_suffix .ini)' -d 'file of options, one name=value a line'
complete -c morvane -o logfile -x -a 'on off' -d 'write a copy of the console\'s text into a log file'
complete -c morvane -n 'string match -q -- "+*" (commandline -ct)' -a '+logfile' -d 'write a copy of the console\'s text into a log file'
complete -c morvane -o verbose -x -a 'on off' -d 'write to the console'
complete -c morvane -n 'string match -q -- "+*" (commandline -ct)' -a '+verbose' -d 'write to the console'
complete -c morvane -o first -x -a 'on off' -d 'write the command reference morvane.macro and end'
complete -c morvane -n 'string match -q -- "+*" (commandline -ct)' -a '+first' -d 'write the command reference morvane.macro and end'
complete -c morvane -o macro -x -a '(__fish_complete_suffix .macro)' -d 'the macro to run; the last bare word counts, too'
complete -c morvane -o image.input -r -F -d 'inputfile(s) (image)'
complete -c morvane -o scalar.input -r -F -d 'inputfile(s) (scalar field)'
complete -c morvane -o vector.input -r -F -d 'inputfile(s) (vector field)'
complete -c morvane -o tensor.input -r -F -d 'inputfile(s) (tensor field)'
complete -c morvane -o mesh.input -r -F -d 'inputfile (meshes)'
complete -c morvane -o freeimage -x -a 'on off' -d 'an image library, on when it is found at run time'
complete -c morvane -n 'string match -q -- "+*" (commandline -ct)' -a '+freeimage' -d 'an image library, on when it is found at run time'
complete -c morvane -o imagemagick -x -a 'on off' -d 'an image library, on when it is found at run time'
complete -c morvane -n 'string match -q -- "+*" (commandline -ct)' -a '+imagemagick' -d 'an image library, on when it is found at run time'
complete -c morvane -o mesh.split -x -d 'how much biggest objects'
complete -c morvane -o mesh.smooth -x -d 'how much smooth passes'
complete -c morvane -o mesh.rotate -x -d 'rotate object (rad)'
complete -c morvane -o mesh.transform -x -d 'translate object'
complete -c morvane -o mesh.scale -x -d 'scale object'
complete -c morvane -o image.type -x -a 'pnm pbm pgm ppm bmp dib tga tif png' -d 'output filetype (image)'
complete -c morvane -o scalar.type -x -a 'hdr nii nii.gz pnm pbm pgm ppm bmp dib tga tif' -d 'output filetype (scalar stack)'
complete -c morvane -o vector.type -x -a 'hdr nii nii.gz fld am' -d 'output filetype (vector stack)'
complete -c morvane -o tensor.type -x -a 'hdr nii nii.gz nhdr nrrd' -d 'output filetype (tensor stack)'
complete -c morvane -o mesh.type -x -a 'obj dxf asc csv prn pov inc spov sinc npov ninc' -d 'output filetype (meshes)'
complete -c morvane -o status -x -a 'on off' -d 'exit status 1 when the script fails'
complete -c morvane -n 'string match -q -- "+*" (commandline -ct)' -a '+status' -d 'exit status 1 when the script fails'
complete -c morvane -o seed -x -d 'random seed'
complete -c morvane -n __morvane_wants_name -a '
    append append.space begin bin bin.to.txt binary.to.text blob blob.count blob.get blob.pos
    blob.replace break case clean clear clock color color.alpha.black color.alpha.bw
    color.alpha.gray color.alpha.wb color.alpha.white color.getrgb color.getrgb.hash color.getrgba
    color.getrgba.hash color.map.art color.map.chart1 color.map.chart2 color.map.default
    color.map.length color.map.name color.map.special color.map.topo color.map.volume1
    color.map.volume2 color.map.warn core datestamp day debug debug.no delay dump dump.all dump.func
    dump.line dump.modul dump.modulus dump.output dump.prog dump.redo dump.stack dump.undo dump.used
    dump.var dump.var.scope dump.vars.scope dump.with dump.xml echo else end execute for for.part
    for.random freeimage.disable freeimage.enable function global halt hour if if.else if.false
    if.then if.true ifabsequal ifall ifallcontain ifallpart ifand ifbigger ifbigger.filesize
    ifcontain ifempty ifequal ifequal.filesize ifexists iffilesize ifnand ifnor ifnot ifnotall
    ifnotallcontain ifnotallpart ifnotcontain ifnotempty ifnotexists ifnotone ifnotonecontain
    ifnotonepart ifnotpart ifnotsame ifnotzero ifone ifonecontain ifonepart ifor ifpart ifsame
    ifsmaller ifsmaller.filesize ifzero ifzero.filesize ignore image image.16bit image.24bit
    image.32bit image.40bit image.8bit image.add image.add.max image.add.min image.analysis
    image.analysis.image image.analysis.raw image.background image.between image.center
    image.centroid image.clean image.cleanup image.clear image.close image.cog image.colorize
    image.combine image.copy image.copy.label image.copy.method image.count image.crop
    image.diffusion image.diffusion.angle image.diffusion.axial image.diffusion.axis
    image.diffusion.max image.diffusion.method image.dilate image.distance image.div image.dump
    image.erode image.extract.color image.extract.colorpoint image.fill image.fill.cube
    image.fill.gap image.fill.hole image.fill.random image.fill.zero image.filter image.flip.x
    image.flip.y image.fulldilate image.fullerode image.fullgrow image.fullscan image.fullshrink
    image.g2l image.getbackground image.getsphere image.group image.group.add image.group.min
    image.group.minmax image.group.sort.border image.group.sort.count image.group.sort.fraction
    image.group.sort.fraction.log image.group.sort.inverse image.group.stat image.group.unsort
    image.grow image.hardsmooth image.histogram image.histogram.image image.histogram.raw
    image.horizontal.mean image.horizontal.sd image.horizontal.sum image.ifimage image.ifplain
    image.intensity image.invert image.l2g image.load image.loadbmp image.loadimgf image.loadpnm
    image.loadraw image.loadrgb image.mask image.mask.different image.mask.same image.matrix
    image.matrix.v1 image.matrix.v2 image.matrix.v3 image.max image.mean image.median image.min
    image.mul image.name image.new image.object.center image.object.size image.offset
    image.offset.center image.open image.origin image.origin.center image.over image.quantile
    image.radial image.radial.half image.radial.quater image.remove.outliers image.resize
    image.rotate.-180 image.rotate.-270 image.rotate.-360 image.rotate.-90 image.rotate.180
    image.rotate.270 image.rotate.360 image.rotate.90 image.save image.scale image.select
    image.setadjust image.setadjust.one image.setadjust.outliers image.setadjust.percentage
    image.setadjust.percentage.weak image.setbalance image.setbalance.highlights
    image.setbalance.midtones image.setbalance.shadows image.setcrop image.setequal image.setgray
    image.sethdrgray image.sethigher image.setlower image.setmax.blue image.setmax.cyan
    image.setmax.green image.setmax.purple image.setmax.red image.setmax.yellow image.setmin.blue
    image.setmin.cyan image.setmin.green image.setmin.purple image.setmin.red image.setmin.yellow
    image.setmono image.setpeak.local image.setpeak.localblue image.setpeak.localgreen
    image.setpeak.localred image.setpeakhigher image.setpeaklower image.setpeakmiddle image.setrange
    image.setsign image.setvalue image.shrink image.size image.smooth image.softsmooth
    image.split.color image.split.colorpoint image.split.rainbow image.split.rainbow.shift
    image.split.rgb image.split.rgba image.stacking image.statistic image.sub image.sub.abs
    image.sub.range image.subimage image.subimage.rel image.submethod image.sum image.swap
    image.unflip image.unrotate image.unsharpmasking image.use image.value image.vertical.mean
    image.vertical.sd image.vertical.sum image.window.cos image.window.sin imagemagick.disable
    imagemagick.enable import include io io.align io.dir.change io.dir.copy io.dir.delete
    io.dir.erase io.dir.hardchange io.dir.harddelete io.dir.harderase io.dir.hardremove io.dir.make
    io.dir.remove io.dir.rename io.dirs io.dirs.add io.dirs.before io.dirs.clear io.dirs.complete
    io.dirs.complete.add io.dirs.first io.dirs.flip io.dirs.get io.dirs.last io.dirs.length
    io.dirs.new io.dirs.next io.dirs.number io.dirs.radd io.dirs.rest io.dirs.rnew io.dirs.size
    io.dirs.sort io.dirs.sort.date io.dirs.sort.real io.dirs.sub io.dirs.subweak io.dirs.to.list
    io.file.copy io.file.copy.method io.file.copy.to io.file.delete io.file.erase io.file.getage
    io.file.getattr io.file.getsize io.file.join io.file.move io.file.move.to io.file.remove
    io.file.rename io.file.repair io.files io.files.add io.files.add.fromfile io.files.before
    io.files.clear io.files.first io.files.flip io.files.fromfile io.files.get io.files.getdir
    io.files.getextension io.files.getfile io.files.getfileextension io.files.getname
    io.files.getprec io.files.getshort io.files.getsucc io.files.last io.files.length io.files.new
    io.files.next io.files.number io.files.replacetxt io.files.rest io.files.size io.files.sort
    io.files.sort.date io.files.sort.real io.files.sort.size io.files.sub io.files.subweak
    io.files.to.list io.fileshort io.getbash io.getdir io.getfile io.getfileextension io.getfilename
    io.getfullfileextension io.getshortdir io.getshortfilename io.sorting io.workdir keywords
    leapyear line line.center line.center.objects line.clean line.clear line.copy line.copyscale
    line.discrete line.discrete.3d line.distance line.draw line.draw.cube line.draw.cube.solid
    line.draw.line line.draw.line.solid line.draw.point line.draw.point.solid line.draw.solid
    line.draw.sphere line.draw.sphere.solid line.draw.t line.draw.value line.draw.value.t line.dump
    line.erase.duplicates line.erase.duplicates.begin line.erase.duplicates.near
    line.erase.length.max line.erase.length.min line.erase.t.max line.erase.t.min line.length
    line.line.lines line.line.objects line.line.points line.load line.max.t
    line.mean.duplicates.near line.mean.t line.median.t line.min.t line.name line.new line.number
    line.object.name line.save line.save.dxf line.save.maya line.save.mv3d line.save.obj
    line.save.swc line.save.trackvis line.save.txt line.save.vtk line.save.vtp line.savemaya
    line.savetrackvis line.savetxt line.sd.t line.swap line.use line.vector.invert
    line.vector.maxscale line.vector.minscale line.vector.negate line.vector.norm
    line.vector.normscale line.vector.scale list list.background list.before list.chars list.clean
    list.clear list.complex list.copy list.delete list.dump list.first list.flip list.get list.hyper
    list.iflist list.insert list.kind list.last list.length list.load list.longest list.max
    list.mean list.min list.name list.nat list.new list.next list.outlier list.outlier.baseline
    list.outlier.factor list.pop list.position list.push list.put list.real list.save
    list.save.table list.sd list.shortest list.size list.smooth list.sort list.sort.real list.swap
    list.to.io.dirs list.to.io.files list.to.stack list.use list.value list.vector local math
    math.angle math.decimal math.degree math.digit math.leading math.length math.matrix math.maxnorm
    math.minnorm math.norm math.scientific math.trailing math.vector matrix matrix.e1 matrix.e2
    matrix.e3 matrix.eigen matrix.ev1 matrix.ev2 matrix.ev3 matrix.fa matrix.inverse matrix.join
    matrix.move matrix.move.get matrix.rotation matrix.rotation.get matrix.scale matrix.scale.get
    matrix.space matrix.trace matrix.transform matrix.transpose matrix.v1 matrix.v2 matrix.v3
    matrix.v4 matrix.vector matrix2quat max maximize mesh mesh.clean mesh.clear mesh.dump mesh.name
    mesh.new mesh.swap mesh.use milliscond min minimize minmax minute module month new nop of ofnot
    output.append output.store parallel print print.blue print.cyan print.green print.purple
    print.red print.yellow procedure process program progress quat quat.angle quat.conjugate
    quat.join quat.mul quat.transform quat.vector quat2matrix random random.byte random.full
    random.fullgray random.gray random.range random.range.nat random.rgb random.rgba random.word
    random2 random2.full random3 random3.full random4 random4.full repeat run scalar scalar.16bit
    scalar.1bit scalar.8bit scalar.analysis scalar.analysis.image scalar.analysis.raw
    scalar.background scalar.bool scalar.byte scalar.center scalar.clean scalar.clear
    scalar.copy.method scalar.copy.xy scalar.copy.xz scalar.copy.yz scalar.count scalar.diffusion
    scalar.diffusion.adaptive.x2 scalar.diffusion.adaptive.x3 scalar.diffusion.adaptive.x4
    scalar.diffusion.adaptive.x5 scalar.diffusion.angle scalar.diffusion.colormap
    scalar.diffusion.dump scalar.diffusion.histogram scalar.diffusion.map scalar.diffusion.max
    scalar.diffusion.method scalar.diffusion.sd scalar.diffusion.x2 scalar.diffusion.x3
    scalar.diffusion.x4 scalar.diffusion.x5 scalar.dump scalar.fullscan scalar.g2l
    scalar.getskeleton scalar.histogram scalar.histogram.fast scalar.histogram.image
    scalar.histogram.raw scalar.ifplain scalar.ifscalar scalar.info scalar.insert.xy
    scalar.insert.xz scalar.insert.yz scalar.invert scalar.l2g scalar.label scalar.labels.clean
    scalar.labels.clear scalar.labels.dump scalar.labels.length scalar.labels.new
    scalar.line.skeleton scalar.load scalar.load.filter scalar.load.framework scalar.load.hdr
    scalar.load.labels scalar.load.nii scalar.load.nii.gz scalar.load.properties scalar.loadhdr
    scalar.loadnii scalar.loadnii.gz scalar.make scalar.make.scalar scalar.make.vector scalar.matrix
    scalar.matrix.v1 scalar.matrix.v2 scalar.matrix.v3 scalar.max scalar.min scalar.name scalar.nat
    scalar.new scalar.offset scalar.offset.add scalar.offset.center scalar.origin
    scalar.origin.center scalar.save scalar.save.labels scalar.save.properties scalar.scale
    scalar.scale.mul scalar.scale.norm scalar.sethigher scalar.setlower scalar.setvalue scalar.size
    scalar.submethod scalar.sum scalar.swap scalar.unflip scalar.unrotate scalar.use scalar.value
    scalar.word scalar.xy scalar.xz scalar.yz second sleep stack stack.clean stack.clear stack.flip
    stack.length stack.size stack.to.list stop store store.space sub table table.addrow table.clean
    table.clear table.column.to.list table.columns.to.array table.columns.to.constant table.dump
    table.find table.get table.getstat table.header table.iftable table.lengthx table.lengthy
    table.load table.load.comment table.name table.new table.put table.row.to.list
    table.rows.to.array table.rows.to.constant table.save table.save.data table.save.transposed
    table.setjoin table.setmethod table.sizex table.sizey table.swap table.use tensor tensor.dump
    tensor.float tensor.int32 tensor.int64 tensor.integer tensor.name tensor.nat tensor.swap
    tensor.use text text.collect text.collect.append text.count text.delete.after text.delete.before
    text.delete.line text.delete.other text.filter text.filter.not text.find text.find.all
    text.ignore.after text.ignore.before text.replace text.split text.split.file
    text.split.file.after text.split.file.before then timer.get timer.start timestamp txt
    txt.collect txt.collect.append txt.count txt.delete.after txt.delete.before txt.delete.line
    txt.delete.other txt.filter txt.filter.not txt.find txt.find.all txt.ignore.after
    txt.ignore.before txt.replace txt.split txt.split.file txt.split.file.after
    txt.split.file.before until var vector vector.24bit vector.add vector.analysis
    vector.analysis.image vector.analysis.raw vector.append vector.append.best vector.append.zero
    vector.background vector.center vector.clean vector.cleanup vector.clear vector.copy
    vector.copy.method vector.copy.xy vector.copy.xz vector.copy.yz vector.copyscale vector.count
    vector.count.all vector.crop vector.direction vector.dump vector.erase.max vector.erase.min
    vector.factor.distance vector.flip.x vector.flip.y vector.flip.z vector.float vector.fuse
    vector.g2l vector.get.angle vector.get.fullangle vector.get.length vector.get.x vector.get.y
    vector.get.z vector.hardsmooth vector.histogram vector.histogram.image vector.histogram.raw
    vector.ifplain vector.ifvector vector.info vector.insert.xy vector.insert.xz vector.insert.yz
    vector.int32 vector.int64 vector.integer vector.inverse vector.l2g vector.line vector.load
    vector.load.framework vector.load.nii vector.load.nii.gz vector.load.properties vector.load.txt
    vector.loadnii vector.loadnii.gz vector.loadtxt vector.make vector.make.scalar
    vector.make.vector vector.mask vector.matrix vector.matrix.v1 vector.matrix.v2 vector.matrix.v3
    vector.max vector.mean vector.min vector.move vector.mul vector.name vector.nat vector.new
    vector.norm vector.norm.max vector.norm.min vector.norm.relative vector.offset
    vector.offset.center vector.origin vector.origin.add vector.origin.center vector.real
    vector.remove.outliers vector.resize vector.rgb vector.save vector.save.properties vector.scale
    vector.scale.mul vector.scale.norm vector.setlength vector.setlength.relative vector.size
    vector.smooth vector.softsmooth vector.stream vector.stream.angles vector.stream.mask
    vector.stream.mask.random vector.stream.muscle vector.stream.muscle.mask
    vector.stream.muscle.mask.random vector.stream.muscle.random vector.stream.nodes
    vector.stream.random vector.stream.seeds vector.stream.slice vector.stream.slice.mask
    vector.stream.slicex vector.stream.slicex.mask vector.stream.slicey vector.stream.slicey.mask
    vector.stream.slicez vector.stream.slicez.mask vector.stream.snakes vector.stream.steps
    vector.stream.stop.angle vector.stream.stop.contrast vector.stream.stop.length
    vector.stream.uniform vector.stream.uniform.random vector.sub vector.substack vector.swap
    vector.unflip vector.unrotate vector.use vector.xy vector.xz vector.yz wait weekday while with
    write write.tab writeln xml xml.delete xml.gettag xml.gettag.id xml.insert.begin xml.insert.end
    xml.replace xml.show year
'
